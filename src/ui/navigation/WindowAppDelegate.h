#pragma once

#include <memory>

#include "ui/navigation/AppDelegateInterface.h"
#include "ui/navigation/MainWindow.h"

// An application object that is just the main window with its navigator and title strip: what
// the app runs with until its full delegate arrives, and what tools and tests stand up.
class WindowAppDelegate : public AppDelegateInterface {
public:
    MainWindow* window() const override { return window_.get(); }

private:
    std::unique_ptr<MainWindow> window_ = std::make_unique<MainWindow>();
};
