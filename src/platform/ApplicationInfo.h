#pragma once

#include <QString>

#include "BuildInfo.h"

// The application's own identity as reports and version checks state it. This build has a
// single version text, so it serves as both the build number and the version shown to users.
struct ApplicationInfo {
    QString name;
    QString identifier;
    QString version;       // the build number
    QString shortVersion;  // the version users see

    static ApplicationInfo current() {
        const QString version = QLatin1String(BuildInfo::version);
        return {QLatin1String(BuildInfo::applicationName),
                QLatin1String(BuildInfo::bundleIdentifier), version, version};
    }
};
