#include "support/Mp4Reader.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QtEndian>

QStringList Mp4Reader::topLevelBoxes(const QString& path) {
    QStringList boxes;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return boxes;
    }
    while (!file.atEnd()) {
        const QByteArray header = file.read(8);
        if (header.size() < 8) {
            break;
        }
        quint64 size = qFromBigEndian<quint32>(header.constData());
        boxes << QString::fromLatin1(header.mid(4, 4));
        qint64 headerSize = 8;
        if (size == 1) {
            size = qFromBigEndian<quint64>(file.read(8).constData());
            headerSize = 16;
        } else if (size == 0) {
            break;
        }
        file.seek(file.pos() - headerSize + static_cast<qint64>(size));
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
