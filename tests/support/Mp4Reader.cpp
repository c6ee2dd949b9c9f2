#include "support/Mp4Reader.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QtEndian>

// Test encodes are small enough to read whole.
QStringList Mp4Reader::topLevelBoxes(const QString& path) {
    QFile file(path);
    const QByteArray data = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    QStringList boxes;
    for (qsizetype at = 0; at + 8 <= data.size();) {
        quint64 size = qFromBigEndian<quint32>(data.constData() + at);
        boxes << QString::fromLatin1(data.mid(at + 4, 4));
        if (size == 1 && at + 16 <= data.size()) {
            size = qFromBigEndian<quint64>(data.constData() + at + 8);
        }
        if (size < 8) {
            break;  // 0 runs to the end of the file
        }
        at += static_cast<qsizetype>(size);
    }
    return boxes;
}

QJsonObject Mp4Reader::probe(const QString& path) {
    QProcess ffprobe;
    ffprobe.start("ffprobe", {"-v", "quiet", "-print_format", "json", "-show_streams", path});
    ffprobe.waitForFinished(30000);
    return QJsonDocument::fromJson(ffprobe.readAllStandardOutput()).object();
}

QJsonObject Mp4Reader::stream(const QJsonObject& answer, const QString& type) {
    for (const QJsonValue& value : answer.value("streams").toArray()) {
        if (value.toObject().value("codec_type").toString() == type) {
            return value.toObject();
        }
    }
    return {};
}
