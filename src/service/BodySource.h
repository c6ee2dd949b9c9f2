#pragma once

#include <QString>
#include <QtGlobal>

// A request body that is produced piece by piece instead of being held in memory, such as a
// multipart form over large files. The transport reads it sequentially on its worker thread and
// releases it there, so an implementation should open its files lazily and touch no objects
// that belong to the main thread. Its total size must be known before the first byte goes out,
// because it is sent as the request's Content-Length.
class BodySource {
public:
    virtual ~BodySource() = default;

    // Exact number of bytes that read() will produce in total.
    virtual quint64 size() const = 0;

    // Copies up to maxSize next bytes into data and returns how many; 0 only at the end,
    // -1 on a failure described by errorString().
    virtual qint64 read(char* data, qint64 maxSize) = 0;

    // Starts over from the first byte. The transport needs this when it has to send the body
    // again, e.g. when a kept-alive connection turns out to be closed or on a redirect.
    virtual bool rewind() { return false; }

    virtual QString errorString() const { return {}; }
};
