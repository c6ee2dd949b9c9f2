#include <QApplication>
#include <memory>

#include "platform/Log.h"
#include "ui/navigation/AppDelegateInterface.h"
#include "ui/navigation/BaseViewController.h"
#include "ui/navigation/MainWindow.h"
#include "ui/navigation/NavigationViewController.h"

namespace {

// Until the application delegate arrives: the window with an empty root screen.
class WindowOnlyDelegate : public AppDelegateInterface {
public:
    MainWindow* window() const override { return window_.get(); }

private:
    std::unique_ptr<MainWindow> window_ = std::make_unique<MainWindow>();
};

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("brightfold"));
    QApplication::setApplicationName(QStringLiteral("Orvale"));
    Log::setUp({.directory = {}, .consoleLevel = Log::Level::Warning, .consoleEnabled = true});

    WindowOnlyDelegate delegate;
    AppDelegateInterface::setApplicationDelegate(&delegate);
    auto* root = BaseViewController::create<BaseViewController>();
    root->setAutoFillBackground(true);
    QPalette white = root->palette();
    white.setColor(QPalette::Window, Qt::white);
    root->setPalette(white);
    delegate.window()->navigationViewController()->setViewController(root);
    delegate.window()->show();

    const int status = QApplication::exec();
    AppDelegateInterface::setApplicationDelegate(nullptr);
    return status;
}
