#include "support/TestMedia.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QUuid>
#include <cmath>
#include <stdexcept>

namespace {

QString seconds(double value) { return QString::number(value, 'f', 3); }

// Enough frames a second that the clip lasts exactly as long as asked (0.51 s = 51 frames).
int frameRateFor(double length) { return std::fmod(length * 25, 1.0) == 0 ? 25 : 100; }

}  // namespace

QString TestMedia::scratchFolder() {
    static QTemporaryDir scratch;
    return scratch.path();
}

QString TestMedia::cacheFolder() {
    const QString folder = QStringLiteral(ORVALE_TEST_MEDIA_CACHE);
    QDir().mkpath(folder);
    return folder;
}

QString TestMedia::generate(const QString& name, const QStringList& ffmpegArguments) {
    const QString target = QDir(cacheFolder()).filePath(name);
    if (QFileInfo::exists(target)) {
        return target;
    }
    // Test processes may run side by side: write under a private name, then rename into place.
    const QString partial =
        QDir(cacheFolder())
            .filePath(QStringLiteral(".%1-%2.%3")
                          .arg(QUuid::createUuid().toString(QUuid::Id128),
                               QFileInfo(name).completeBaseName(), QFileInfo(name).suffix()));
    QProcess ffmpeg;
    ffmpeg.setProcessChannelMode(QProcess::MergedChannels);
    ffmpeg.start(QStringLiteral("ffmpeg"),
                 QStringList{QStringLiteral("-hide_banner"), QStringLiteral("-nostdin"),
                             QStringLiteral("-loglevel"), QStringLiteral("error")} +
                     ffmpegArguments + QStringList{QStringLiteral("-y"), partial});
    if (!ffmpeg.waitForFinished(120000) || ffmpeg.exitCode() != 0) {
        throw std::runtime_error("ffmpeg could not make " + name.toStdString() + ": " +
                                 ffmpeg.readAll().toStdString());
    }
    QFile::rename(partial, target);
    QFile::remove(partial);
    return target;
}

QString TestMedia::video(int width, int height, double length, bool withAudio) {
    const QString name = QStringLiteral("video-%1x%2-%3s%4.mp4")
                             .arg(width)
                             .arg(height)
                             .arg(seconds(length), withAudio ? "-audio" : "");
    QStringList args{QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                     QStringLiteral("testsrc=size=%1x%2:rate=%3:duration=%4")
                         .arg(width)
                         .arg(height)
                         .arg(frameRateFor(length))
                         .arg(seconds(length))};
    if (withAudio) {
        args << QStringLiteral("-f") << QStringLiteral("lavfi") << QStringLiteral("-i")
             << QStringLiteral("sine=frequency=440:sample_rate=44100:duration=%1")
                    .arg(seconds(length))
             << QStringLiteral("-c:a") << QStringLiteral("aac") << QStringLiteral("-shortest");
    }
    args << QStringLiteral("-c:v") << QStringLiteral("libx264") << QStringLiteral("-preset")
         << QStringLiteral("ultrafast") << QStringLiteral("-pix_fmt") << QStringLiteral("yuv420p");
    return generate(name, args);
}

QString TestMedia::audioOnly(double length) {
    return generate(QStringLiteral("audio-%1s.m4a").arg(seconds(length)),
                    {QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                     QStringLiteral("sine=frequency=440:duration=%1").arg(seconds(length)),
                     QStringLiteral("-c:a"), QStringLiteral("aac")});
}

QString TestMedia::still(int width, int height) {
    return generate(QStringLiteral("still-%1x%2.png").arg(width).arg(height),
                    {QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                     QStringLiteral("color=c=orange:size=%1x%2").arg(width).arg(height),
                     QStringLiteral("-frames:v"), QStringLiteral("1")});
}

QString TestMedia::withCoverPicture() {
    const QString film = video(1920, 1080, 1.0);
    const QString cover = still(600, 600);
    return generate(
        QStringLiteral("video-with-cover.mp4"),
        {QStringLiteral("-i"), film, QStringLiteral("-i"), cover, QStringLiteral("-map"),
         QStringLiteral("0"), QStringLiteral("-map"), QStringLiteral("1"), QStringLiteral("-c:v:0"),
         QStringLiteral("copy"), QStringLiteral("-c:v:1"), QStringLiteral("png"),
         QStringLiteral("-disposition:v:1"), QStringLiteral("attached_pic")});
}

QString TestMedia::copyNamed(const QString& source, const QString& name) {
    const QString target = QDir(scratchFolder()).filePath(name);
    QFile::remove(target);
    QFile::copy(source, target);
    return target;
}

QString TestMedia::textFile(const QString& name, const QByteArray& content) {
    const QString target = QDir(scratchFolder()).filePath(name);
    QFile file(target);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        file.write(content);
    }
    return target;
}
