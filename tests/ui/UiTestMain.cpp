#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

#include "support/TestSandbox.h"

// Widgets are tested offscreen, unless a platform is chosen (xvfb-run: QT_QPA_PLATFORM=xcb).
int main(int argc, char** argv) {
    QTemporaryDir sandbox;
    useSandboxFolders(sandbox);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }

    QApplication app(argc, argv);
    nameApplicationAndLog();

    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
