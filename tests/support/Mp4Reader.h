#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

// Looks inside an encoded MP4: the order of its top-level boxes and what ffprobe says of it.
class Mp4Reader {
public:
    static QStringList topLevelBoxes(const QString& path);
    static QJsonObject probe(const QString& path);
    // The first stream of the given type ("video", "audio") in ffprobe's answer.
    static QJsonObject stream(const QJsonObject& answer, const QString& type);
};
