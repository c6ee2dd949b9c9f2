#pragma once

#include <QFile>

#include "media/Encoder.h"
#include "media/FFmpegUtilities.h"
#include "model/File.h"
#include "support/EventLoop.h"
#include "support/TestMedia.h"

// A file made ready for a job as the file selection screen would: probed, first size chosen.
inline FilePtr probedFile(const QString& path, int presetIndex = 0) {
    auto file = std::make_shared<File>(QUrl::fromLocalFile(path));
    Encoder probe;
    probe.loadVideoDetailsForFile(file);
    if (file->videoDetail) {
        const auto rows = FFmpegUtilities::resolutionsBySize(file->videoDetail->width,
                                                             file->videoDetail->height, true);
        if (!rows.isEmpty()) {
            FFmpegUtilities::applyPreset(rows.at(std::min<qsizetype>(presetIndex, rows.size() - 1)),
                                         *file->videoDetail);
        }
    }
    return file;
}

// A video that was probed fine and then became unreadable, so that its encode fails for real.
inline FilePtr damagedClip(const QString& name) {
    const FilePtr file =
        probedFile(TestMedia::copyNamed(TestMedia::video(320, 180, 1, true), name));
    QFile damage(file->path());
    damage.open(QIODevice::WriteOnly | QIODevice::Truncate);
    damage.write(QByteArray(4096, 'x'));
    return file;
}
