#pragma once

class MainWindow;
class NavigationViewController;
class QWidget;

// What screens need of the application object: the main window, its screen navigator and the
// title strip's view that takes their buttons. The application registers its one instance; a
// test gives a screen an instance of its own instead.
class AppDelegateInterface {
public:
    virtual ~AppDelegateInterface() = default;

    virtual MainWindow* window() const = 0;
    // Both default to the window's own.
    virtual NavigationViewController* navigationViewController() const;
    virtual QWidget* titleBarView() const;

    // The application's instance; null until one is registered.
    static AppDelegateInterface* applicationDelegate();
    static void setApplicationDelegate(AppDelegateInterface* delegate);
};
