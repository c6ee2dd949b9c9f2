#pragma once

#include <QCoreApplication>
#include <QTemporaryDir>

#include "platform/Log.h"

// Points home, data, settings and cache folders into the test run's own folder, so nothing of
// the user's is touched. Call before the application object exists.
inline void useSandboxFolders(const QTemporaryDir& sandbox) {
    qputenv("HOME", sandbox.filePath(QStringLiteral("home")).toUtf8());
    qputenv("XDG_DATA_HOME", sandbox.filePath(QStringLiteral("data")).toUtf8());
    qputenv("XDG_CONFIG_HOME", sandbox.filePath(QStringLiteral("config")).toUtf8());
    qputenv("XDG_CACHE_HOME", sandbox.filePath(QStringLiteral("cache")).toUtf8());
}

// The application's names (which settings file) and the log, once the application object exists.
inline void nameApplicationAndLog() {
    QCoreApplication::setOrganizationName(QStringLiteral("brightfold"));
    QCoreApplication::setApplicationName(QStringLiteral("Orvale"));
    Log::setUp({.directory = {}, .consoleLevel = Log::Level::Warning, .consoleEnabled = true});
}
