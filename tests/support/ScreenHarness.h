#pragma once

#include <QTest>
#include <memory>

#include "ui/navigation/AppDelegateInterface.h"
#include "ui/navigation/M3NavigationView.h"
#include "ui/navigation/MainWindow.h"
#include "ui/navigation/NavigationViewController.h"

// Stands in for the application object with a main window of its own, so each screen test has
// its own navigator and title strip. Slides are short; tests wait for their real end.
class ScreenHarness : public AppDelegateInterface {
public:
    explicit ScreenHarness(int slideDurationMs = 30) {
        navigationView().setSlideDuration(slideDurationMs);
        window_->show();
    }

    MainWindow* window() const override { return window_.get(); }
    M3NavigationView& navigationView() const {
        return *window_->navigationViewController()->navigationView();
    }
    bool waitForSlides() const {
        return QTest::qWaitFor([this] { return !navigationView().isAnimating(); });
    }

private:
    std::unique_ptr<MainWindow> window_ = std::make_unique<MainWindow>();
};
