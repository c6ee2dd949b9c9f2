#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <atomic>

#include "model/File.h"

// Running ffprobe on one file and reading its answer into the file's record.
class VideoProbe {
public:
    // The probe's arguments. Older ffprobe builds take "-show_format_entry" "duration"; newer
    // ones dropped that option and take "-show_entries" "format=duration" in its place.
    static QStringList arguments(const QString& filePath, bool acceptsShowFormatEntry);

    // Whether this ffprobe still knows "-show_format_entry"; asked once per helper build.
    static bool acceptsShowFormatEntry(const QString& helperPath);

    // Runs the helper to its end and returns everything it wrote to standard output; empty when
    // it could not be started, or when it was abandoned (then it is killed).
    static QByteArray run(const QString& helperPath, const QStringList& arguments,
                          const std::atomic_bool& abandoned);

    // Fills isVideo and videoDetail from ffprobe's JSON answer. An empty or unreadable answer
    // makes the file a non-video and leaves its videoDetail alone.
    static void applyAnswer(const QByteArray& answer, File& file);

    // Probe seconds to milliseconds, rounded to hundredths of a second.
    static double roundedMilliseconds(double seconds);
};
