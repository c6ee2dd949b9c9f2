#include "ui/navigation/NavigationViewController.h"

NavigationViewController::NavigationViewController(QObject* parent)
    : QObject(parent), navigationView_(new M3NavigationView) {}

NavigationViewController::~NavigationViewController() {
    if (navigationView_ != nullptr && navigationView_->parentWidget() == nullptr) {
        delete navigationView_;
    }
}

void NavigationViewController::setViewController(BaseViewController* screen) {
    navigationView_->setViewController(screen);
}

void NavigationViewController::pushViewController(BaseViewController* screen, bool animated) {
    navigationView_->pushViewController(screen, animated);
}

void NavigationViewController::popViewControllerAnimated(bool animated) {
    navigationView_->popViewControllerAnimated(animated);
}

void NavigationViewController::popToViewControllerWithIndex(qsizetype index, bool animated) {
    navigationView_->popToViewControllerWithIndex(index, animated);
}

void NavigationViewController::insertViewControllerAtIndex(BaseViewController* screen,
                                                           qsizetype index) {
    navigationView_->insertViewController(screen, index);
}

qsizetype NavigationViewController::indexOfViewController(const BaseViewController* screen) const {
    return navigationView_->indexOfViewController(screen);
}

void NavigationViewController::showViewControllerAtIndex(qsizetype index) {
    navigationView_->showViewControllerAtIndex(index);
}

void NavigationViewController::removeLastViewController() {
    navigationView_->removeLastViewController();
}
