#include "ui/navigation/BaseViewController.h"

#include <QCoreApplication>

#include "jobs/DataManager.h"
#include "model/HEX.h"
#include "model/TitleBarLayout.h"
#include "platform/NotificationCenter.h"
#include "ui/controls/ButtonWithIcon.h"
#include "ui/controls/Fonts.h"
#include "ui/controls/ViewGeometry.h"
#include "ui/navigation/NavigationViewController.h"
#include "ui/navigation/SheetFocus.h"

namespace {

void removeFromSuperview(QWidget* view) {
    view->hide();
    view->setParent(nullptr);
    view->deleteLater();
}

}  // namespace

BaseViewController::BaseViewController(AppDelegateInterface* appDelegate, DataManager* dataManager)
    : appDelegate_(appDelegate),
      dataManager_(dataManager != nullptr ? dataManager : &DataManager::sharedInstance()) {
    removeViewsFromTitleBar();
}

BaseViewController::~BaseViewController() {
    NotificationCenter::defaultCenter().removeObserver(this);
}

void BaseViewController::awakeFromNib() {
    isScreenVisible_ = true;
    signUpForNotifications();
}

void BaseViewController::activateView() { isScreenVisible_ = true; }

NavigationViewController* BaseViewController::navigator() const {
    return appDelegate_ != nullptr ? appDelegate_->navigationViewController() : nullptr;
}

void BaseViewController::pushViewController(BaseViewController* screen, bool animated) {
    if (navigator() != nullptr) {
        navigator()->pushViewController(screen, animated);
    }
}

void BaseViewController::popViewControllerAnimated(bool animated) {
    if (navigator() != nullptr) {
        navigator()->popViewControllerAnimated(animated);
    }
}

void BaseViewController::popToViewControllerWithIndex(qsizetype index, bool animated) {
    if (navigator() != nullptr) {
        navigator()->popToViewControllerWithIndex(index, animated);
    }
}

void BaseViewController::insertViewController(BaseViewController* screen, qsizetype index) {
    if (navigator() != nullptr) {
        navigator()->insertViewControllerAtIndex(screen, index);
    }
}

qsizetype BaseViewController::indexOfViewController(const BaseViewController* screen) const {
    return navigator() != nullptr ? navigator()->indexOfViewController(screen) : -1;
}

void BaseViewController::showViewControllerAtIndex(qsizetype index) {
    if (navigator() != nullptr) {
        navigator()->showViewControllerAtIndex(index);
    }
}

void BaseViewController::removeLastViewController() {
    if (navigator() != nullptr) {
        navigator()->removeLastViewController();
    }
}

QWidget* BaseViewController::titleBarView() const {
    return appDelegate_ != nullptr ? appDelegate_->titleBarView() : nullptr;
}

QRect BaseViewController::titleBarFrame() const {
    return titleBarView() != nullptr ? titleBarView()->geometry() : QRect();
}

void BaseViewController::removeViewsFromTitleBar() {
    if (titleBarView() == nullptr) {
        return;
    }
    for (QWidget* view : titleBarView()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        removeFromSuperview(view);
    }
}

void BaseViewController::addSubviewToTitleBar(QWidget* view) {
    if (titleBarView() != nullptr) {
        view->setParent(titleBarView());
        view->show();
    }
}

void BaseViewController::addBackButton() {
    removeBackButton();
    if (titleBarView() == nullptr) {
        return;
    }
    auto* button = new ButtonWithIcon(titleBarView());
    ViewGeometry::setFrame(button, TitleBarLayout::backButtonFrame());
    button->setIconName(QStringLiteral("icon_home.png"));
    button->setHighlightedIconName(QStringLiteral("icon_home_selected.png"));
    button->setTitleColor(HEX::colorWithHexString(QStringLiteral("#999999")));
    button->setTitleFont(Fonts::helveticaNeueBold(12));
    button->setTitleString(QStringLiteral("Back"));
    connect(button, &ButtonWithIcon::triggered, this, &BaseViewController::backButtonDidTouch);
    backButton_ = button;
    addSubviewToTitleBar(button);
}

void BaseViewController::backButtonDidTouch() {
    if (backButton_ != nullptr) {
        backButton_->setActionEnabled(false);
    }
    popViewControllerAnimated(true);
}

void BaseViewController::removeBackButton() {
    if (backButton_ != nullptr) {
        removeFromSuperview(backButton_);
    }
    backButton_ = nullptr;
}

void BaseViewController::removeUserButton() {
    if (userButton_ != nullptr) {
        removeFromSuperview(userButton_);
    }
    userButton_ = nullptr;
}

void BaseViewController::showAlertWithMessage(const QString& message) { openAlert(message); }

void BaseViewController::showAlertWithMessage(const QString& message,
                                              std::function<void()> didEnd) {
    endAlert();
    QMessageBox* box = openAlert(message);
    if (didEnd) {
        connect(box, &QDialog::finished, this, [didEnd = std::move(didEnd)] { didEnd(); });
    }
}

void BaseViewController::endAlert() {
    if (alert_ == nullptr) {
        return;
    }
    QMessageBox* showing = alert_;
    alert_ = nullptr;
    // Ended by us, not dismissed by the user: its receiver is not told.
    disconnect(showing, &QDialog::finished, this, nullptr);
    if (showing->isVisible()) {
        showing->done(QMessageBox::Cancel);
    }
}

QMessageBox* BaseViewController::openAlert(const QString& message) {
    auto* box = new QMessageBox(QMessageBox::Warning, QCoreApplication::applicationName(), message,
                                QMessageBox::Ok, window());
    box->setWindowModality(Qt::WindowModal);
    connect(box, &QDialog::finished, box, &QObject::deleteLater);
    SheetFocus::returnAfter(box);
    alert_ = box;
    box->open();
    return box;
}
