#include "media/PresetSelection.h"

#include "media/FFmpegUtilities.h"
#include "model/VideoDetail.h"

qsizetype PresetSelection::selectedIndex(const QList<PresetRow>& rows, const VideoDetail& detail) {
    if (detail.widthToEncode == 0 && !detail.doNotEncode) {
        return 0;
    }
    qsizetype selected = 0;
    for (const PresetRow& row : rows) {
        if (row.width == detail.widthToEncode) {
            selected = rows.indexOf(row);
        }
    }
    return selected;
}

PresetSelection::Result PresetSelection::reload(VideoDetail& detail, bool hasDoNotEncode) {
    Result result{FFmpegUtilities::resolutionsBySize(detail.width, detail.height, hasDoNotEncode),
                  0};
    result.selectedIndex = selectedIndex(result.rows, detail);
    const PresetRow chosen = result.selectedIndex < result.rows.size()
                                 ? result.rows.at(result.selectedIndex)
                                 : PresetRow{};
    detail.widthToEncode = chosen.width;
    detail.minBitrate = chosen.minBitrate;
    detail.maxBitrate = chosen.maxBitrate;
    return result;
}
