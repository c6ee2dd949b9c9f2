#pragma once

#include <QFile>
#include <QJsonObject>
#include <QString>
#include <mutex>

namespace orvale_service {

// An append-only file of one JSON object per line, shared by the server's threads. Each line is
// flushed before the request's answer goes out, so a client that got its answer can read it.
class JsonLinesFile {
public:
    // An empty path makes a file that writes nothing.
    explicit JsonLinesFile(const QString& path);

    bool open(QString* error);
    void append(const QJsonObject& line);
    QString path() const { return file_.fileName(); }

private:
    std::mutex mutex_;
    QFile file_;
    bool enabled_;
};

}  // namespace orvale_service
