#include "ProbeReport.h"

#include <QFileInfo>
#include <QJsonArray>

#include "media/FFmpegUtilities.h"
#include "model/OutputSizeEstimate.h"

namespace {

QList<PresetRow> offeredPresets(const FilePtr& file, bool doNotEncode) {
    if (!file || !file->videoDetail) {
        return {};
    }
    return FFmpegUtilities::resolutionsBySize(file->videoDetail->width, file->videoDetail->height,
                                              doNotEncode);
}

QString bitrateRange(const PresetRow& row) {
    if (row.minBitrate.isEmpty()) {
        return {};
    }
    return QStringLiteral("%1 - %2").arg(row.minBitrate, row.maxBitrate);
}

// What the file comes to at that size: a band for an encode, the file itself for "Do Not Encode".
std::optional<OutputSizeEstimate> expectedSize(const File& file, const PresetRow& row) {
    if (row.isDoNotEncode()) {
        return OutputSizeEstimate::forUntouched(file.size);
    }
    return OutputSizeEstimate::forEncode(file.videoDetail->duration, row.minBitrate,
                                         row.maxBitrate);
}

QJsonObject presetJson(const File& file, const PresetRow& row) {
    QJsonObject json = row.toJson();
    if (const auto size = expectedSize(file, row)) {
        json.insert(QStringLiteral("expectedSize"),
                    QJsonObject{{QStringLiteral("minBytes"), size->minimumBytes},
                                {QStringLiteral("maxBytes"), size->maximumBytes},
                                {QStringLiteral("text"), size->text()}});
    }
    return json;
}

QString presetLine(const File& file, const PresetRow& row) {
    const auto size = expectedSize(file, row);
    QString line = QStringLiteral("    %1%2%3")
                       .arg(row.sizeDescription, -16)
                       .arg(bitrateRange(row), -17)
                       .arg(size ? size->text() : QString());
    while (line.endsWith(QLatin1Char(' '))) {
        line.chop(1);
    }
    return line + QLatin1Char('\n');
}

}  // namespace

QJsonObject ProbeReport::json(const QString& path, const FilePtr& file, const QString& error,
                              bool doNotEncode) {
    const VideoDetailPtr detail = file ? file->videoDetail : nullptr;
    QJsonObject object{{QStringLiteral("path"), path},
                       {QStringLiteral("isVideo"), file && file->isVideo},
                       {QStringLiteral("duration"), detail ? detail->duration : 0.0},
                       {QStringLiteral("width"), detail ? detail->width : 0.0},
                       {QStringLiteral("height"), detail ? detail->height : 0.0}};
    QJsonArray presets;
    for (const PresetRow& row : offeredPresets(file, doNotEncode)) {
        presets.append(presetJson(*file, row));
    }
    object.insert(QStringLiteral("presets"), presets);
    if (!error.isEmpty()) {
        object.insert(QStringLiteral("error"), error);
    }
    return object;
}

QString ProbeReport::text(const QString& path, const FilePtr& file, const QString& error,
                          bool doNotEncode) {
    const QString name = QFileInfo(path).fileName();
    if (!error.isEmpty()) {
        return QStringLiteral("%1: not a video (%2)\n").arg(name, error);
    }
    const VideoDetailPtr detail = file->videoDetail;
    QString text = QStringLiteral("%1: %2").arg(
        name, file->isVideo ? QStringLiteral("video") : QStringLiteral("not a video"));
    if (detail) {
        text += QStringLiteral(", %1 ms, %2x%3")
                    .arg(detail->duration, 0, 'f', 0)
                    .arg(detail->width)
                    .arg(detail->height);
    }
    text += QLatin1Char('\n');
    for (const PresetRow& row : offeredPresets(file, doNotEncode)) {
        text += presetLine(*file, row);
    }
    return text;
}
