#include "media/VideoProbe.h"

#include <QJsonDocument>
#include <QProcess>
#include <cmath>

#include "media/HelperAnswers.h"
#include "model/ValidObjects.h"
#include "platform/HelperProcess.h"

namespace {

constexpr double minimumVideoMilliseconds = 500;
constexpr int abandonCheckMilliseconds = 100;

HelperAnswers::Reply probeAcceptsShowFormatEntry(const QString& helperPath) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    HelperProcess::prepare(process);
    process.start(helperPath, {QStringLiteral("-v"), QStringLiteral("quiet"),
                               QStringLiteral("-show_format_entry"), QStringLiteral("duration"),
                               QStringLiteral("-version")});
    if (!process.waitForFinished(30000)) {
        process.kill();
        process.waitForFinished();
        return {QStringLiteral("no"), false};
    }
    // A helper that crashed said nothing about its options.
    const bool exited = process.exitStatus() == QProcess::NormalExit;
    return {exited && process.exitCode() == 0 ? QStringLiteral("yes") : QStringLiteral("no"),
            exited};
}

}  // namespace

QStringList VideoProbe::arguments(const QString& filePath, bool acceptsShowFormatEntry) {
    QStringList args{QStringLiteral("-v"), QStringLiteral("quiet"), QStringLiteral("-print_format"),
                     QStringLiteral("json")};
    if (acceptsShowFormatEntry) {
        args << QStringLiteral("-show_format_entry") << QStringLiteral("duration");
    } else {
        args << QStringLiteral("-show_entries") << QStringLiteral("format=duration");
    }
    args << QStringLiteral("-show_streams") << filePath;
    return args;
}

bool VideoProbe::acceptsShowFormatEntry(const QString& helperPath) {
    return HelperAnswers::shared().answer(
               helperPath, QStringLiteral("takes -show_format_entry"),
               [&] { return probeAcceptsShowFormatEntry(helperPath); }) == QStringLiteral("yes");
}

QByteArray VideoProbe::run(const QString& helperPath, const QStringList& arguments,
                           const std::atomic_bool& abandoned) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.setInputChannelMode(QProcess::ForwardedInputChannel);
    HelperProcess::prepare(process);
    process.start(helperPath, arguments, QIODevice::ReadOnly);
    if (!process.waitForStarted()) {
        return {};
    }
    // In slices, so that an abandoned probe stops its helper instead of waiting it out.
    while (!process.waitForFinished(abandonCheckMilliseconds)) {
        if (process.state() == QProcess::NotRunning) {
            break;
        }
        if (abandoned) {
            process.kill();
            process.waitForFinished();
            return {};
        }
    }
    return process.readAllStandardOutput();
}

double VideoProbe::roundedMilliseconds(double seconds) {
    return std::round(seconds * 100) / 100 * 1000;
}

void VideoProbe::applyAnswer(const QByteArray& answer, File& file) {
    const QJsonDocument document = QJsonDocument::fromJson(answer);
    if (!document.isObject()) {
        file.isVideo = false;
        return;
    }
    const QJsonObject root = document.object();
    bool foundVideoStream = false;
    const QJsonArray streams =
        ValidObjects::arrayForKey(root, QStringLiteral("streams")).value_or(QJsonArray());
    for (const QJsonValue& value : streams) {
        const QJsonObject stream = value.toObject();
        if (ValidObjects::stringForKey(stream, QStringLiteral("codec_type")) !=
            QStringLiteral("video")) {
            continue;
        }
        auto detail = std::make_shared<VideoDetail>();
        detail->duration =
            roundedMilliseconds(ValidObjects::doubleForKey(stream, QStringLiteral("duration")));
        detail->width = ValidObjects::intForKey(stream, QStringLiteral("width"));
        detail->height = ValidObjects::intForKey(stream, QStringLiteral("height"));
        file.videoDetail = detail;
        foundVideoStream = true;
    }
    const QJsonObject format =
        ValidObjects::dictionaryForKey(root, QStringLiteral("format")).value_or(QJsonObject());
    if (file.videoDetail) {
        file.videoDetail->duration =
            roundedMilliseconds(ValidObjects::doubleForKey(format, QStringLiteral("duration")));
    }
    file.isVideo = foundVideoStream && file.videoDetail->duration > minimumVideoMilliseconds;
}
