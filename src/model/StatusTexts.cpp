#include "model/StatusTexts.h"

#include <algorithm>
#include <cmath>

QString StatusTexts::windowTitle(std::optional<double> percent) {
    if (!percent || std::isnan(*percent)) {
        return kApplicationName;
    }
    const int whole = static_cast<int>(std::floor(std::clamp(*percent, 0.0, 100.0)));
    return QStringLiteral("%1% \u2013 %2").arg(whole).arg(kApplicationName);
}

QString StatusTexts::jobEndedSummary(bool isLocalEncode) {
    return isLocalEncode ? QStringLiteral("Encoding finished") : QStringLiteral("Upload finished");
}

QString StatusTexts::newVersionText(const QString& version) {
    return QStringLiteral("%1 %2 is available.").arg(kApplicationName, version);
}

QString StatusTexts::jobEndedBody(int completed, int failed) {
    return QStringLiteral("%1 completed, %2 failed").arg(completed).arg(failed);
}
