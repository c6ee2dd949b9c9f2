#pragma once

#include <QLocale>
#include <QString>
#include <optional>

class File;

// How big a file is expected to come out of the job. An encode is a band: its video between
// the preset's minimum and maximum bitrate, plus the audio at the bitrate the encode gives it,
// over the clip's duration. A file that is sent as it is keeps its own size, known exactly.
struct OutputSizeEstimate {
    // What the encode gives every clip's audio ("-b:a 128k"), silent clips included.
    static constexpr int kAudioBitrateKbps = 128;

    qint64 minimumBytes = 0;
    qint64 maximumBytes = 0;
    bool estimated = false;

    // Bitrates in the transcoder's notation ("2000k"); none without both or without a duration.
    static std::optional<OutputSizeEstimate> forEncode(double durationMs, const QString& minBitrate,
                                                       const QString& maxBitrate);
    static OutputSizeEstimate forUntouched(double bytes);
    // By the choice held in the file's details: encoded videos by their bitrates, files that are
    // not encoded by their size; none for a video whose size is not chosen yet.
    static std::optional<OutputSizeEstimate> forFile(const File& file);

    OutputSizeEstimate& operator+=(const OutputSizeEstimate& other);
    bool operator==(const OutputSizeEstimate& other) const = default;

    // "≈ 24-38 MB" for a band, rounded outward so that it holds both ends; "5.2 MB" when known.
    // Decimal units, both ends in the unit of the larger; one decimal below 10, unless it is 0.
    QString text(const QLocale& locale = QLocale()) const;
};
