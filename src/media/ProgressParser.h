#pragma once

#include <QByteArray>
#include <optional>

// Reads ffmpeg's console output chunk by chunk. Only the first "time=" of what arrived counts;
// a "time=" whose value is cut off by the end of a chunk is kept and read together with the
// next chunk, so a progress line split across two reads still counts.
class ProgressParser {
public:
    struct Result {
        bool outOfSpace = false;
        std::optional<double> milliseconds;
    };

    Result parse(const QByteArray& chunk);
    void reset() { pending_.clear(); }

private:
    QByteArray pending_;
};
