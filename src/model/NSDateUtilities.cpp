#include "model/NSDateUtilities.h"

#include <QString>
#include <QStringList>
#include <cmath>

#include "model/NumberScanner.h"

namespace {

constexpr double kMillisecondsPerMinute = 60000.0;
constexpr double kMillisecondsPerHour = kMillisecondsPerMinute * 60.0;

double partValue(const QStringList& parts, qsizetype index) {
    return index < parts.size() ? NumberScanner::doubleValue(parts[index]) : 0.0;
}

}  // namespace

NSDateUtilities& NSDateUtilities::sharedInstance() {
    static NSDateUtilities instance;
    return instance;
}

double NSDateUtilities::millisecondsFromString(const QString& text) const {
    const QStringList parts = text.split(QLatin1Char(':'));
    const double hours = partValue(parts, 0);
    const double minutes = partValue(parts, 1);
    // std::round takes halves away from zero, as the transcoder's hundredths need.
    const double seconds = std::round(partValue(parts, 2) * 100.0) / 100.0;
    return hours * kMillisecondsPerHour + minutes * kMillisecondsPerMinute + seconds * 1000.0;
}
