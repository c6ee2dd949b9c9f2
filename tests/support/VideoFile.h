#pragma once

#include "model/File.h"

// A video as a probe would have described it, without the file or the probe.
inline FilePtr videoFile(const QString& path, double width, double height, double durationMs,
                         const QString& minBitrate = {}, const QString& maxBitrate = {}) {
    auto file = std::make_shared<File>(QUrl::fromLocalFile(path));
    file->isVideo = true;
    file->videoDetail = std::make_shared<VideoDetail>();
    file->videoDetail->width = width;
    file->videoDetail->height = height;
    file->videoDetail->duration = durationMs;
    file->videoDetail->minBitrate = minBitrate;
    file->videoDetail->maxBitrate = maxBitrate;
    return file;
}
