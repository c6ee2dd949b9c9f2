#pragma once

#include <QTest>

#include "ui/navigation/M3NavigationView.h"
#include "ui/navigation/NavigationViewController.h"
#include "ui/navigation/WindowAppDelegate.h"

// Stands in for the application object with a main window of its own, so each screen test has
// its own navigator and title strip. Slides are short; tests wait for their real end.
class ScreenHarness : public WindowAppDelegate {
public:
    explicit ScreenHarness(int slideDurationMs = 30) {
        navigationView().setSlideDuration(slideDurationMs);
        window()->show();
    }
    // Screens let go of by the navigator are deleted later; they must go now, while the job
    // manager they were given still lives.
    ~ScreenHarness() override {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    M3NavigationView& navigationView() const {
        return *navigationViewController()->navigationView();
    }
    template <class Screen>
    Screen* current() const {
        return qobject_cast<Screen*>(navigationView().currentViewController());
    }
    bool waitForSlides() const {
        return QTest::qWaitFor([this] { return !navigationView().isAnimating(); });
    }
    // Offscreen, the window is not made active again when a dialog over it closes.
    bool activate() const {
        window()->activateWindow();
        return QTest::qWaitForWindowActive(window());
    }
};
