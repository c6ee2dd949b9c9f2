#include "model/BatchProgressTexts.h"

#include <cmath>

namespace {

constexpr qint64 kMinutesShownAlone = 90;

}  // namespace

QString BatchProgressTexts::fileLine(const QString& fileName, int number, int count) {
    return QStringLiteral("%1 \u00b7 file %2 of %3").arg(fileName).arg(number).arg(count);
}

QString BatchProgressTexts::timeLeft(std::optional<qint64> seconds) {
    if (!seconds) {
        return {};
    }
    if (*seconds < 60) {
        return QStringLiteral("Less than a minute left");
    }
    const auto minutes = static_cast<qint64>(std::llround(static_cast<double>(*seconds) / 60));
    if (minutes < kMinutesShownAlone) {
        return QStringLiteral("About %1 min left").arg(minutes);
    }
    return QStringLiteral("About %1 h %2 min left").arg(minutes / 60).arg(minutes % 60);
}
