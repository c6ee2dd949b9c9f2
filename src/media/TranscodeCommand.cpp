#include "media/TranscodeCommand.h"

#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <optional>

#include "media/HelperAnswers.h"
#include "model/OutputSizeEstimate.h"
#include "platform/HelperProcess.h"

namespace {

const QString legacyAacEncoder = QStringLiteral("libvo_aacenc");
const QString nativeAacEncoder = QStringLiteral("aac");
const QString experimentalMark = QStringLiteral(" experimental");

// The list with the banner: old builds refuse "-hide_banner", and the banner lines never look
// like encoder lines. Empty when the helper did not answer the question.
QByteArray listEncoders(const QString& helperPath) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    HelperProcess::prepare(process);
    process.start(helperPath, {QStringLiteral("-encoders")});
    if (!process.waitForFinished(30000)) {
        process.kill();
        process.waitForFinished();
        return {};
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        return {};
    }
    return process.readAll();
}

// Lines read " A....D aac   AAC (Advanced Audio Coding)": six flags, then the encoder's name.
std::optional<QString> flagsOf(const QByteArray& encoderList, const QString& encoder) {
    const QRegularExpression line(
        QStringLiteral("^\\s*([A-Z.]{6})\\s+%1\\s").arg(QRegularExpression::escape(encoder)),
        QRegularExpression::MultilineOption);
    const QRegularExpressionMatch match = line.match(QString::fromUtf8(encoderList));
    return match.hasMatch() ? std::optional<QString>(match.captured(1)) : std::nullopt;
}

}  // namespace

TranscodeCommand::AudioEncoder TranscodeCommand::audioEncoderInList(const QByteArray& encoderList) {
    if (flagsOf(encoderList, legacyAacEncoder)) {
        return {legacyAacEncoder, false};
    }
    const QString flags = flagsOf(encoderList, nativeAacEncoder).value_or(QString());
    return {nativeAacEncoder, flags.size() == 6 && flags.at(3) == QLatin1Char('X')};
}

TranscodeCommand::AudioEncoder TranscodeCommand::audioEncoderFor(const QString& helperPath) {
    const QString answer = HelperAnswers::shared().answer(
        helperPath, QStringLiteral("aac encoder, marked experimental or not"),
        [&]() -> HelperAnswers::Reply {
            const QByteArray encoders = listEncoders(helperPath);
            if (encoders.isEmpty()) {
                return {nativeAacEncoder + experimentalMark, false};
            }
            const AudioEncoder encoder = audioEncoderInList(encoders);
            return {encoder.name + (encoder.experimental ? experimentalMark : QString()), true};
        });
    const bool experimental = answer.endsWith(experimentalMark);
    return {experimental ? answer.chopped(experimentalMark.size()) : answer, experimental};
}

QString TranscodeCommand::outputName(const File& file) {
    const QString fileName = QFileInfo(file.path()).fileName();
    const qsizetype dot = fileName.lastIndexOf(QLatin1Char('.'));
    QString base = dot > 0 ? fileName.left(dot) : fileName;
    if (file.videoDetail && file.videoDetail->preserveOriginal) {
        base += QStringLiteral("_proxy");
    }
    return base + QStringLiteral(".mp4");
}

QString TranscodeCommand::scaleFilter(int widthToEncode) {
    return QStringLiteral("[in]scale=%1:trunc(ow/a/2+0.5)*2[middle];[middle]yadif[out]")
        .arg(widthToEncode);
}

QStringList TranscodeCommand::arguments(const File& file, const QString& outputPath,
                                        const AudioEncoder& audioEncoder) {
    const VideoDetail& detail = *file.videoDetail;
    QStringList args{QStringLiteral("-i"),        file.path(),
                     QStringLiteral("-q:v"),      QStringLiteral("1"),
                     QStringLiteral("-b:v"),      detail.minBitrate,
                     QStringLiteral("-minrate"),  detail.minBitrate,
                     QStringLiteral("-maxrate"),  detail.maxBitrate,
                     QStringLiteral("-bufsize"),  detail.minBitrate,
                     QStringLiteral("-vcodec"),   QStringLiteral("libx264"),
                     QStringLiteral("-pix_fmt"),  QStringLiteral("yuv410p"),
                     QStringLiteral("-vf"),       scaleFilter(detail.widthToEncode),
                     QStringLiteral("-movflags"), QStringLiteral("faststart"),
                     QStringLiteral("-c:a"),      audioEncoder.name};
    if (audioEncoder.experimental) {
        args << QStringLiteral("-strict") << QStringLiteral("experimental");
    }
    args << QStringLiteral("-b:a")
         << QStringLiteral("%1k").arg(OutputSizeEstimate::kAudioBitrateKbps) << QStringLiteral("-y")
         << outputPath;
    return args;
}
