#pragma once

#include <QString>

#include "server/JsonLinesFile.h"

namespace orvale_service {

struct Exchange;

// The folder that received files are written to, with its index: one JSON line per multipart
// request, naming the fields, the files, where they were stored and whether the framing and the
// Content-Length checked out.
class UploadStore {
public:
    explicit UploadStore(const QString& directory);

    bool open(QString* error);
    QString directory() const { return directory_; }
    QString indexPath() const { return index_.path(); }
    // A fresh path for a file part; the name keeps the sent file name, made safe for the disk.
    QString pathFor(qint64 requestId, int partIndex, const QString& fileName) const;
    void appendIndex(const Exchange& exchange);

private:
    QString directory_;
    JsonLinesFile index_;
};

}  // namespace orvale_service
