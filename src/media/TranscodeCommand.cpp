#include "media/TranscodeCommand.h"

#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

#include "media/HelperAnswers.h"

namespace {

const QString legacyAacEncoder = QStringLiteral("libvo_aacenc");
const QString nativeAacEncoder = QStringLiteral("aac");

QByteArray listEncoders(const QString& helperPath) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(helperPath, {QStringLiteral("-hide_banner"), QStringLiteral("-encoders")});
    if (!process.waitForFinished(30000)) {
        process.kill();
        process.waitForFinished();
        return {};
    }
    return process.readAll();
}

}  // namespace

bool TranscodeCommand::encoderListHas(const QByteArray& encoderList, const QString& encoder) {
    // Lines read " A....D aac   AAC (Advanced Audio Coding)": flags, then the encoder's name.
    const QRegularExpression line(QStringLiteral("^\\s*[A-Z.]{6}\\s+%1\\s").arg(QRegularExpression::escape(encoder)),
                                  QRegularExpression::MultilineOption);
    return line.match(QString::fromUtf8(encoderList)).hasMatch();
}

QString TranscodeCommand::audioEncoderFor(const QString& helperPath) {
    return HelperAnswers::shared().answer(helperPath, QStringLiteral("aac encoder"), [&]() -> HelperAnswers::Reply {
        const QByteArray encoders = listEncoders(helperPath);
        if (encoders.isEmpty()) {
            return {nativeAacEncoder, false};  // no list, no lasting conclusion
        }
        return {encoderListHas(encoders, legacyAacEncoder) ? legacyAacEncoder : nativeAacEncoder, true};
    });
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
    return QStringLiteral("[in]scale=%1:trunc(ow/a/2+0.5)*2[middle];[middle]yadif[out]").arg(widthToEncode);
}

QStringList TranscodeCommand::arguments(const File& file, const QString& outputPath, const QString& audioEncoder) {
    const VideoDetail& detail = *file.videoDetail;
    return {QStringLiteral("-i"),       file.path(),
            QStringLiteral("-q:v"),     QStringLiteral("1"),
            QStringLiteral("-b:v"),     detail.minBitrate,
            QStringLiteral("-minrate"), detail.minBitrate,
            QStringLiteral("-maxrate"), detail.maxBitrate,
            QStringLiteral("-bufsize"), detail.minBitrate,
            QStringLiteral("-vcodec"),  QStringLiteral("libx264"),
            QStringLiteral("-pix_fmt"), QStringLiteral("yuv410p"),
            QStringLiteral("-vf"),      scaleFilter(detail.widthToEncode),
            QStringLiteral("-movflags"), QStringLiteral("faststart"),
            QStringLiteral("-c:a"),     audioEncoder,
            QStringLiteral("-b:a"),     QStringLiteral("128k"),
            QStringLiteral("-y"),       outputPath};
}
