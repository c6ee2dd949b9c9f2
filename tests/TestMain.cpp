#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include "support/TestSandbox.h"

// Every test run gets its own home, data and settings folders, so nothing of the user's is touched,
// and no proxy of the user's: tests talk to services on this machine only.
int main(int argc, char** argv) {
    for (const char* proxy :
         {"http_proxy", "https_proxy", "all_proxy", "HTTP_PROXY", "HTTPS_PROXY", "ALL_PROXY"}) {
        qunsetenv(proxy);
    }
    QTemporaryDir sandbox;
    useSandboxFolders(sandbox);

    QCoreApplication app(argc, argv);
    nameApplicationAndLog();

    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
