#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include "platform/Log.h"

// Every test run gets its own home, data and settings folders, so nothing of the user's is touched,
// and no proxy of the user's: tests talk to services on this machine only.
int main(int argc, char** argv) {
    for (const char* proxy :
         {"http_proxy", "https_proxy", "all_proxy", "HTTP_PROXY", "HTTPS_PROXY", "ALL_PROXY"}) {
        qunsetenv(proxy);
    }
    QTemporaryDir sandbox;
    qputenv("HOME", sandbox.filePath(QStringLiteral("home")).toUtf8());
    qputenv("XDG_DATA_HOME", sandbox.filePath(QStringLiteral("data")).toUtf8());
    qputenv("XDG_CONFIG_HOME", sandbox.filePath(QStringLiteral("config")).toUtf8());
    qputenv("XDG_CACHE_HOME", sandbox.filePath(QStringLiteral("cache")).toUtf8());

    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("brightfold"));
    QCoreApplication::setApplicationName(QStringLiteral("Orvale"));
    Log::setUp({.directory = {}, .consoleLevel = Log::Level::Warning, .consoleEnabled = true});

    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
