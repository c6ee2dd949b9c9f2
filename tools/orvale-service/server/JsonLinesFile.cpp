#include "server/JsonLinesFile.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>

namespace orvale_service {

JsonLinesFile::JsonLinesFile(const QString& path) : file_(path), enabled_(!path.isEmpty()) {}

bool JsonLinesFile::open(QString* error) {
    if (!enabled_) {
        return true;
    }
    QDir().mkpath(QFileInfo(file_.fileName()).absolutePath());
    if (!file_.open(QIODevice::WriteOnly | QIODevice::Append)) {
        *error = QStringLiteral("cannot write %1: %2").arg(file_.fileName(), file_.errorString());
        return false;
    }
    return true;
}

void JsonLinesFile::append(const QJsonObject& line) {
    if (!enabled_) {
        return;
    }
    const QByteArray text = QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
    std::lock_guard<std::mutex> guard(mutex_);
    file_.write(text);
    file_.flush();
}

}  // namespace orvale_service
