#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include "support/TestSandbox.h"

// Every test run gets its own home, data and settings folders, so nothing of the user's is touched.
int main(int argc, char** argv) {
    QTemporaryDir sandbox;
    useSandboxFolders(sandbox);

    QCoreApplication app(argc, argv);
    nameApplicationAndLog();

    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
