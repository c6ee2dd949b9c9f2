#pragma once

#include "media/FFmpegUtilities.h"
#include "media/Encoder.h"
#include "model/File.h"
#include "support/EventLoop.h"

// A file made ready for a job as the file selection screen would: probed, first size chosen.
inline FilePtr probedFile(const QString& path, int presetIndex = 0) {
    auto file = std::make_shared<File>(QUrl::fromLocalFile(path));
    Encoder probe;
    probe.loadVideoDetailsForFile(file);
    if (file->videoDetail) {
        const auto rows = FFmpegUtilities::resolutionsBySize(file->videoDetail->width, file->videoDetail->height, true);
        if (!rows.isEmpty()) {
            FFmpegUtilities::applyPreset(rows.at(std::min<qsizetype>(presetIndex, rows.size() - 1)), *file->videoDetail);
        }
    }
    return file;
}
