#include "model/ProgressBarRules.h"

#include <cmath>

namespace {

ProgressBarRules::BarUpdate stubOrEmpty(double percent) {
    return {percent > 1 ? ProgressBarRules::kStubPercent : 0.0, false};
}

}  // namespace

ProgressBarRules::BarUpdate ProgressBarRules::convertBar(double percent, double previousPercent) {
    if (percent < kStubPercent) {
        return stubOrEmpty(percent);
    }
    return {percent, previousPercent >= kStubPercent};
}

ProgressBarRules::BarUpdate ProgressBarRules::uploadBar(double percent, double previousPercent) {
    if (percent > 98) {
        return {kUploadCapPercent, true, false};
    }
    return convertBar(percent, previousPercent);
}

QString ProgressBarRules::percentText(double percent) {
    return QStringLiteral("%1%").arg(static_cast<int>(std::floor(percent)));
}
