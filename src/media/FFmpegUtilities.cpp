#include "media/FFmpegUtilities.h"

#include <algorithm>
#include <iterator>

#include "model/VideoDetail.h"
#include "platform/Log.h"

namespace {

PresetRow presetRow(int width, int height, const char* minBitrate, const char* maxBitrate) {
    return {width, height, QStringLiteral("%1x%2").arg(width).arg(height),
            QString::fromLatin1(minBitrate), QString::fromLatin1(maxBitrate)};
}

// Largest first: a source keeps every row up to its own width, so the first kept row is the
// biggest size it can be encoded to without upscaling.
const QList<PresetRow>& landscapeSixteenByNine() {
    static const QList<PresetRow> rows{
        presetRow(1920, 1080, "3600k", "5000k"), presetRow(1280, 720, "2000k", "3200k"),
        presetRow(1024, 576, "1800k", "3000k"),  presetRow(960, 540, "1600k", "2200k"),
        presetRow(896, 504, "1400k", "2000k"),   presetRow(768, 432, "1200k", "1800k"),
        presetRow(640, 360, "1000k", "1250k"),
    };
    return rows;
}

// One row shorter than its landscape counterpart on purpose: there is no 540x960 preset.
const QList<PresetRow>& portraitNineBySixteen() {
    static const QList<PresetRow> rows{
        presetRow(1080, 1920, "3600k", "5000k"), presetRow(720, 1280, "2000k", "3200k"),
        presetRow(576, 1024, "1800k", "3000k"),  presetRow(504, 896, "1400k", "2000k"),
        presetRow(432, 768, "1200k", "1800k"),   presetRow(360, 640, "1000k", "1250k"),
    };
    return rows;
}

const QList<PresetRow>& landscapeFourByThree() {
    static const QList<PresetRow> rows{
        presetRow(1280, 960, "2200k", "3400k"), presetRow(1024, 768, "2000k", "3200k"),
        presetRow(960, 720, "1800k", "2500k"),  presetRow(800, 600, "1400k", "2200k"),
        presetRow(720, 540, "1200k", "1800k"),  presetRow(640, 480, "1000k", "1200k"),
    };
    return rows;
}

const QList<PresetRow>& portraitThreeByFour() {
    static const QList<PresetRow> rows{
        presetRow(960, 1280, "2200k", "3400k"), presetRow(768, 1024, "2000k", "3200k"),
        presetRow(720, 960, "1800k", "2500k"),  presetRow(600, 800, "1400k", "2200k"),
        presetRow(540, 720, "1200k", "1800k"),  presetRow(480, 640, "1000k", "1200k"),
    };
    return rows;
}

// Bitrates follow the longer side, so portrait and landscape of one size cost the same.
PresetRow computedRow(double scaledWidth, double scaledHeight) {
    const int width = static_cast<int>(scaledWidth);
    const int height = static_cast<int>(scaledHeight);
    const double larger = std::max(scaledWidth, scaledHeight);
    if (larger >= 1920) {
        return presetRow(width, height, "3500k", "5000k");
    }
    if (larger >= 1200) {
        return presetRow(width, height, "2200k", "3500k");
    }
    if (larger >= 960) {
        return presetRow(width, height, "1800k", "2500k");
    }
    return presetRow(width, height, "1500k", "2500k");
}

// A source between two presets is offered its own size first, at a middling bitrate. Above
// 1920 wide the table's largest preset serves instead, unless nothing else is left.
bool needsSourceSizeRow(const QList<PresetRow>& kept, double width, double height) {
    if (kept.isEmpty()) {
        return true;
    }
    if (kept.first().width == width && kept.first().height == height) {
        return false;
    }
    return width <= 1920;
}

PresetRow sourceSizeRow(double width, double height) {
    return presetRow(static_cast<int>(width), static_cast<int>(height), "1500k", "2500k");
}

PresetRow doNotEncodeRow() { return {0, 0, QStringLiteral("Do Not Encode"), {}, {}}; }

}  // namespace

FFmpegUtilities& FFmpegUtilities::sharedInstance() {
    static FFmpegUtilities instance;
    return instance;
}

QList<PresetRow> FFmpegUtilities::resolutionsBySize(double width, double height,
                                                    bool hasDoNotEncode) {
    QList<PresetRow> rows;
    // Written so that NaN, like an unknown width, gives no choices at all.
    if (!(width > 0)) {
        LOG_VERBOSE("No frame width ({}), offering no sizes", width);
        return rows;
    }
    const QList<PresetRow> options = encodingOptionsForSize(width, height);
    std::copy_if(options.cbegin(), options.cend(), std::back_inserter(rows),
                 [width](const PresetRow& row) { return row.width <= width; });
    if (needsSourceSizeRow(rows, width, height)) {
        rows.prepend(sourceSizeRow(width, height));
    }
    if (hasDoNotEncode) {
        rows.append(doNotEncodeRow());
    }
    return rows;
}

// Only exact ratios use a table. The encoder keeps the source's shape, so a near miss such as
// 854x480 would be shown table heights its encodes never have; it gets its own sizes instead.
QList<PresetRow> FFmpegUtilities::encodingOptionsForSize(double width, double height) {
    const double ratio = width / height;
    if (width > height) {
        if (ratio == 16.0 / 9.0) {
            return landscapeSixteenByNine();
        }
        if (ratio == 4.0 / 3.0) {
            return landscapeFourByThree();
        }
    } else if (height > width) {
        if (ratio == 9.0 / 16.0) {
            return portraitNineBySixteen();
        }
        if (ratio == 3.0 / 4.0) {
            return portraitThreeByFour();
        }
    }
    return getDynamicResolutionsForNonstandardSize(width, height);
}

QList<PresetRow> FFmpegUtilities::getDynamicResolutionsForNonstandardSize(double width,
                                                                          double height) {
    QList<PresetRow> rows;
    for (const double factor : {1.0, 0.75, 0.5}) {
        rows.append(computedRow(width * factor, height * factor));
    }
    return rows;
}

void FFmpegUtilities::applyPreset(const PresetRow& row, VideoDetail& detail) {
    detail.widthToEncode = row.width;
    detail.minBitrate = row.minBitrate;
    detail.maxBitrate = row.maxBitrate;
    detail.doNotEncode = detail.widthToEncode == 0;
}
