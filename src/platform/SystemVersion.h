#pragma once

#include <QString>
#include <optional>

// Chooses between the current and the "_old" builds of the helpers. The old builds serve
// product versions 10.8 and lower; Linux has no such product version, so the current
// helpers are always used here.
class SystemVersion {
public:
    // The version source: the system's product version, when the system has one.
    static std::optional<QString> productVersion();

    static bool isTenPointEightOrLower(const QString& productVersion);

    // "ffprobe" or "ffprobe_old" (likewise for ffmpeg) for the given product version.
    static QString helperName(const QString& baseName, const std::optional<QString>& productVersion);
};
