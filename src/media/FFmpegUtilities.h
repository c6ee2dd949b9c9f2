#pragma once

#include <QList>

#include "media/PresetRow.h"

struct VideoDetail;

// Target frame sizes and bitrates offered for a source video. Pure functions of the source's
// width and height; the shared instance exists only for callers that want an object.
class FFmpegUtilities {
public:
    static FFmpegUtilities& sharedInstance();

    FFmpegUtilities(const FFmpegUtilities&) = delete;
    FFmpegUtilities& operator=(const FFmpegUtilities&) = delete;

    // The rows offered for a source, in display order, never wider than the source, with a
    // trailing "Do Not Encode" row when asked for. Empty when the width is unknown (<= 0).
    static QList<PresetRow> resolutionsBySize(double width, double height, bool hasDoNotEncode);

    // The preset table of the source's exact aspect ratio, or computed sizes for other shapes.
    static QList<PresetRow> encodingOptionsForSize(double width, double height);

    // The source size, 75 % and 50 % of it, truncated, with bitrates by the scaled size.
    static QList<PresetRow> getDynamicResolutionsForNonstandardSize(double width, double height);

    // Copies the user's choice into the detail the encoder reads.
    static void applyPreset(const PresetRow& row, VideoDetail& detail);

private:
    FFmpegUtilities() = default;
};
