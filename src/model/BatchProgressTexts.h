#pragma once

#include <QString>
#include <optional>

// The lines under the encode bar: which file is at work, and how long the batch still needs.
class BatchProgressTexts {
public:
    // "clip.mov · file 2 of 3"
    static QString fileLine(const QString& fileName, int number, int count);
    // "About 3 min left", "About 1 h 20 min left", "Less than a minute left"; empty while the
    // time is not known.
    static QString timeLeft(std::optional<qint64> seconds);
};
