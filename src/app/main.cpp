#include <QApplication>
#include <cstdio>
#include <cstring>

#include "app/AppDelegate.h"
#include "app/FirstPaintReport.h"
#include "platform/ApplicationInfo.h"
#include "platform/Log.h"
#include "platform/SingleInstance.h"

namespace {

// Answered before the application object exists, so that they need no display.
bool answeredFromCommandLine(int argc, char** argv) {
    for (int index = 1; index < argc; ++index) {
        if (std::strcmp(argv[index], "--version") == 0) {
            std::printf("orvale %s\n", qPrintable(ApplicationInfo::current().shortVersion));
            return true;
        }
        if (std::strcmp(argv[index], "--help") == 0) {
            std::printf(
                "Usage: orvale [FILE...]\nOpens the Orvale window with the files in it; "
                "with Orvale already running, hands the files to its window.\n");
            return true;
        }
    }
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    if (answeredFromCommandLine(argc, argv)) {
        return 0;
    }
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("brightfold"));
    QApplication::setApplicationName(QStringLiteral("Orvale"));
    QApplication::setApplicationVersion(ApplicationInfo::current().shortVersion);
    QGuiApplication::setDesktopFileName(QStringLiteral("orvale"));
    Log::setUp({.directory = {}, .consoleLevel = Log::Level::Warning, .consoleEnabled = true});

    const QStringList files = SingleInstance::absolutePaths(QApplication::arguments().mid(1));
    SingleInstance instance;
    if (!instance.start(files)) {
        return 0;
    }

    AppDelegate delegate(AppDelegate::Parts::application());
    AppDelegateInterface::setApplicationDelegate(&delegate);
    delegate.listenForReopen(instance);
    FirstPaintReport::watchIfAsked(delegate.window());
    delegate.applicationDidFinishLaunching();
    if (!files.isEmpty()) {
        delegate.addFilesToRootScreen(files);
    }
    const int status = QApplication::exec();
    AppDelegateInterface::setApplicationDelegate(nullptr);
    return status;
}
