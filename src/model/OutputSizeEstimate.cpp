#include "model/OutputSizeEstimate.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "model/File.h"
#include "model/NumberScanner.h"

namespace {

const std::array<const char*, 5> kUnits{"B", "kB", "MB", "GB", "TB"};

enum class Rounding { Down, Up, Nearest };

qint64 bytesAt(double kilobitsPerSecond, double durationMs) {
    // kbit/s * ms = bits; eight to a byte.
    return static_cast<qint64>(std::llround(kilobitsPerSecond * durationMs / 8));
}

std::optional<double> kilobitsPerSecond(const QString& bitrate) {
    if (bitrate.isEmpty()) {
        return std::nullopt;
    }
    const double value = NumberScanner::doubleValue(bitrate);
    return value > 0 ? std::optional(value) : std::nullopt;
}

// Whole numbers from 10 up, one decimal below unless it is 0 ("7 MB", as the upload progress says).
QString number(qint64 bytes, qint64 unit, Rounding rounding, const QLocale& locale) {
    const int decimals = unit > 1 && bytes < 10 * unit ? 1 : 0;
    const qint64 scale = decimals == 1 ? 10 : 1;
    const double exact =
        static_cast<double>(bytes) * static_cast<double>(scale) / static_cast<double>(unit);
    const double rounded = rounding == Rounding::Down ? std::floor(exact)
                           : rounding == Rounding::Up ? std::ceil(exact)
                                                      : std::round(exact);
    const bool whole = std::fmod(rounded, static_cast<double>(scale)) == 0;
    return locale.toString(rounded / static_cast<double>(scale), 'f', whole ? 0 : decimals);
}

}  // namespace

std::optional<OutputSizeEstimate> OutputSizeEstimate::forEncode(double durationMs,
                                                                const QString& minBitrate,
                                                                const QString& maxBitrate) {
    const auto minimum = kilobitsPerSecond(minBitrate);
    const auto maximum = kilobitsPerSecond(maxBitrate);
    if (!minimum || !maximum || !(durationMs > 0)) {
        return std::nullopt;
    }
    return OutputSizeEstimate{bytesAt(*minimum + kAudioBitrateKbps, durationMs),
                              bytesAt(*maximum + kAudioBitrateKbps, durationMs), true};
}

OutputSizeEstimate OutputSizeEstimate::forUntouched(double bytes) {
    const auto size = static_cast<qint64>(std::llround(std::max(bytes, 0.0)));
    return {size, size, false};
}

std::optional<OutputSizeEstimate> OutputSizeEstimate::forFile(const File& file) {
    const VideoDetail* detail = file.videoDetail.get();
    if (!file.isVideo || detail == nullptr || detail->doNotEncode) {
        return forUntouched(file.size);
    }
    return forEncode(detail->duration, detail->minBitrate, detail->maxBitrate);
}

OutputSizeEstimate& OutputSizeEstimate::operator+=(const OutputSizeEstimate& other) {
    minimumBytes += other.minimumBytes;
    maximumBytes += other.maximumBytes;
    estimated = estimated || other.estimated;
    return *this;
}

QString OutputSizeEstimate::text(const QLocale& locale) const {
    size_t power = 0;
    qint64 unit = 1;
    while (power + 1 < kUnits.size() && maximumBytes >= unit * 1000) {
        unit *= 1000;
        ++power;
    }
    const QString suffix = QLatin1Char(' ') + QLatin1String(kUnits.at(power));
    if (!estimated) {
        return number(maximumBytes, unit, Rounding::Nearest, locale) + suffix;
    }
    const QString low = number(minimumBytes, unit, Rounding::Down, locale);
    const QString high = number(maximumBytes, unit, Rounding::Up, locale);
    const QString band = low == high ? high : low + QLatin1Char('-') + high;
    return QStringLiteral("\u2248 ") + band + suffix;
}
