#pragma once

#include <QMainWindow>

class NavigationViewController;
class TitleStrip;
class UpdateBar;

// The one window: the native frame, then the title strip across the top of the content, the
// update bar when it shows, and the navigation view filling the fixed content area below.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    // Wide enough for the screens' geometry (the progress screen centres on x 457).
    static constexpr QSize kContentSize{914, 562};

    explicit MainWindow(QWidget* parent = nullptr);

    NavigationViewController* navigationViewController() const { return navigationViewController_; }
    TitleStrip* titleStrip() const { return titleStrip_; }
    // Hidden until a newer release is announced; the window grows by its height while it shows.
    UpdateBar* updateBar() const { return updateBar_; }
    QWidget* titleBarView() const;

private:
    NavigationViewController* navigationViewController_;
    TitleStrip* titleStrip_;
    UpdateBar* updateBar_;
};
