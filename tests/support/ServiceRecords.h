#pragma once

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

// Reading what orvale-service recorded: the pairs of a form request, the parts of an upload.
namespace ServiceRecords {

inline QByteArray contentsOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline QString pairValue(const QJsonObject& request, const QString& name) {
    for (const QJsonValue& pair : request.value("pairs").toArray()) {
        if (pair["name"].toString() == name) {
            return pair["value"].toString();
        }
    }
    return {};
}

inline QStringList fieldNames(const QJsonObject& upload) {
    QStringList names;
    for (const QJsonValue& field : upload.value("fields").toArray()) {
        names << field["name"].toString();
    }
    return names;
}

inline QJsonObject firstFile(const QJsonObject& upload) {
    return upload.value("files").toArray().at(0).toObject();
}

// The bytes the service stored for a file part.
inline QByteArray storedContent(const QJsonObject& file) {
    return contentsOf(file.value("stored").toString());
}

}  // namespace ServiceRecords
