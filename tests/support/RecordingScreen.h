#pragma once

#include <QStringList>

#include "ui/navigation/BaseViewController.h"

// A screen that notes what the navigation view tells it, in order.
class RecordingScreen : public BaseViewController {
public:
    using BaseViewController::BaseViewController;

    void activateView() override {
        BaseViewController::activateView();
        calls << QStringLiteral("activateView");
    }
    void willStartAnimating() override { calls << QStringLiteral("willStartAnimating"); }
    void didFinishAnimating() override { calls << QStringLiteral("didFinishAnimating"); }

    QStringList calls;
};
