#pragma once

#include <QMainWindow>

class NavigationViewController;
class TitleStrip;

// The one window: the native frame, then the title strip across the top of the content and the
// navigation view filling the fixed content area below it.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    // Wide enough for the screens' geometry (the progress screen centres on x 457).
    static constexpr QSize kContentSize{914, 562};

    explicit MainWindow(QWidget* parent = nullptr);

    NavigationViewController* navigationViewController() const { return navigationViewController_; }
    TitleStrip* titleStrip() const { return titleStrip_; }
    QWidget* titleBarView() const;

private:
    NavigationViewController* navigationViewController_;
    TitleStrip* titleStrip_;
};
