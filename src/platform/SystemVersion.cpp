#include "platform/SystemVersion.h"

#include <QStringList>

#include "platform/Log.h"

std::optional<QString> SystemVersion::productVersion() {
    return std::nullopt;
}

namespace {

// The leading digits of a version component: "8" of "8", 5 of "5b", 0 of "".
int leadingNumber(const QString& component) {
    int value = 0;
    for (const QChar c : component.trimmed()) {
        if (!c.isDigit()) {
            break;
        }
        value = value * 10 + c.digitValue();
    }
    return value;
}

}  // namespace

bool SystemVersion::isTenPointEightOrLower(const QString& productVersion) {
    const QStringList parts = productVersion.split(QLatin1Char('.'));
    const int major = leadingNumber(parts.value(0));
    const int minor = leadingNumber(parts.value(1));
    return major < 10 || (major == 10 && minor <= 8);
}

QString SystemVersion::helperName(const QString& baseName, const std::optional<QString>& productVersion) {
    if (productVersion && isTenPointEightOrLower(*productVersion)) {
        LOG_VERBOSE("Detected Mac OS X version is 10.8 or lower, using older {}", baseName);
        return baseName + QStringLiteral("_old");
    }
    return baseName;
}
