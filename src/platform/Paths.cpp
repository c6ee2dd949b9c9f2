#include "platform/Paths.h"

#include <QDir>
#include <QStandardPaths>

#include "BuildInfo.h"

QString Paths::libraryFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

QString Paths::workFolder() {
    return QDir(libraryFolder())
        .filePath(QStringLiteral("Containers/%1").arg(QLatin1String(BuildInfo::bundleIdentifier)));
}

QString Paths::logFolder() {
    return QDir(libraryFolder())
        .filePath(QStringLiteral("Logs/%1").arg(QLatin1String(BuildInfo::applicationName)));
}

QString Paths::cacheFolder() {
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation))
        .filePath(QLatin1String(BuildInfo::applicationName));
}

QString Paths::runtimeFolder() {
    return QDir(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation))
        .filePath(QLatin1String(BuildInfo::applicationName));
}

QString Paths::defaultOutputFolder() {
    return QDir::home().filePath(QStringLiteral("Orvale Kesto Output"));
}
