#pragma once

#include <QObject>
#include <QPointer>

#include "ui/navigation/M3NavigationView.h"

class BaseViewController;

// The screen navigator the application owns. It holds the navigation view, which whoever lays
// out the window places, and hands every navigation operation on to it.
class NavigationViewController : public QObject {
    Q_OBJECT

public:
    explicit NavigationViewController(QObject* parent = nullptr);
    ~NavigationViewController() override;

    // Created here; deleted here unless a parent widget took it.
    M3NavigationView* navigationView() const { return navigationView_; }

    void setViewController(BaseViewController* screen);
    void pushViewController(BaseViewController* screen, bool animated);
    void popViewControllerAnimated(bool animated);
    void popToViewControllerWithIndex(qsizetype index, bool animated);
    void insertViewControllerAtIndex(BaseViewController* screen, qsizetype index);
    qsizetype indexOfViewController(const BaseViewController* screen) const;
    void showViewControllerAtIndex(qsizetype index);
    void removeLastViewController();

private:
    QPointer<M3NavigationView> navigationView_;
};
