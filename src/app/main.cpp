#include <QApplication>

#include "platform/Log.h"
#include "ui/navigation/NavigationViewController.h"
#include "ui/navigation/WindowAppDelegate.h"
#include "ui/screens/LocalEncodeViewController.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("brightfold"));
    QApplication::setApplicationName(QStringLiteral("Orvale"));
    Log::setUp({.directory = {}, .consoleLevel = Log::Level::Warning, .consoleEnabled = true});

    // Until the application delegate arrives: the window with the root screen.
    WindowAppDelegate delegate;
    AppDelegateInterface::setApplicationDelegate(&delegate);
    delegate.navigationViewController()->setViewController(
        BaseViewController::create<LocalEncodeViewController>());
    delegate.window()->show();

    const int status = QApplication::exec();
    AppDelegateInterface::setApplicationDelegate(nullptr);
    return status;
}
