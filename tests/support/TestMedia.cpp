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
        QDir(cacheFolder()).filePath('.' + QUuid::createUuid().toString(QUuid::Id128) + name);
    QProcess ffmpeg;
    ffmpeg.setProcessChannelMode(QProcess::MergedChannels);
    ffmpeg.start("ffmpeg", QStringList{"-hide_banner", "-nostdin", "-loglevel", "error"} +
                               ffmpegArguments + QStringList{"-y", partial});
    if (!ffmpeg.waitForFinished(120000) || ffmpeg.exitCode() != 0) {
        throw std::runtime_error("ffmpeg could not make " + name.toStdString() + ": " +
                                 ffmpeg.readAll().toStdString());
    }
    QFile::rename(partial, target);
    QFile::remove(partial);
    return target;
}

QString TestMedia::video(int width, int height, double length, bool withAudio) {
    const QString size = QStringLiteral("%1x%2").arg(width).arg(height);
    QStringList args{"-f", "lavfi", "-i",
                     QStringLiteral("testsrc=size=%1:rate=%2:duration=%3")
                         .arg(size)
                         .arg(frameRateFor(length))
                         .arg(seconds(length))};
    if (withAudio) {
        const QString tone = "sine=frequency=440:sample_rate=44100:duration=" + seconds(length);
        args += QStringList{"-f", "lavfi", "-i", tone, "-c:a", "aac", "-shortest"};
    }
    const QString name =
        "video-" + size + "-" + seconds(length) + "s" + (withAudio ? "-audio" : "") + ".mp4";
    return generate(
        name, args + QStringList{"-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p"});
}

QString TestMedia::audioOnly(double length) {
    return generate(
        "audio-" + seconds(length) + "s.m4a",
        {"-f", "lavfi", "-i", "sine=frequency=440:duration=" + seconds(length), "-c:a", "aac"});
}

QString TestMedia::still(int width, int height) {
    const QString size = QStringLiteral("%1x%2").arg(width).arg(height);
    return generate("still-" + size + ".png",
                    {"-f", "lavfi", "-i", "color=c=orange:size=" + size, "-frames:v", "1"});
}

QString TestMedia::withCoverPicture() {
    return generate("video-with-cover.mp4",
                    {"-i", video(1920, 1080, 1.0), "-i", still(600, 600), "-map", "0", "-map", "1",
                     "-c:v:0", "copy", "-c:v:1", "png", "-disposition:v:1", "attached_pic"});
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
