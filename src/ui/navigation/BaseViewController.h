#pragma once

#include <QMessageBox>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <utility>

#include "ui/controls/ButtonWithIcon.h"
#include "ui/navigation/AppDelegateInterface.h"

class DataManager;

// The base of every screen. A screen reaches the navigator and the title strip through the
// application object it was made with, and the job manager through the one it was given (the
// shared one unless a test passes its own).
//
// Make screens with create<Screen>(...): it runs awakeFromNib() once the constructor, which sets
// up the screen's .ui, is done. That is the one place for set-up that needs the finished layout
// or the subclass's overrides; subclasses extend it and call the base first.
class BaseViewController : public QWidget {
    Q_OBJECT

public:
    template <class Screen, class... Arguments>
    static Screen* create(Arguments&&... arguments) {
        auto* screen = new Screen(std::forward<Arguments>(arguments)...);
        static_cast<BaseViewController*>(screen)->awakeFromNib();
        return screen;
    }

    explicit BaseViewController(
        AppDelegateInterface* appDelegate = AppDelegateInterface::applicationDelegate(),
        DataManager* dataManager = nullptr);
    ~BaseViewController() override;

    AppDelegateInterface* appDelegate() const { return appDelegate_; }
    DataManager& dataManager() const { return *dataManager_; }

    // Whether the screen counts as the one in front; screens ignore notifications while not.
    // Not QWidget's visibility.
    bool isScreenVisible() const { return isScreenVisible_; }
    void setScreenVisible(bool visible) { isScreenVisible_ = visible; }

    // Called by the navigation view: the screen became current, a slide involving it begins,
    // that slide ended. Screens extend activateView() and call the base.
    virtual void activateView();
    virtual void willStartAnimating() {}
    virtual void didFinishAnimating() {}

    // Navigation, handed on to the application's navigator.
    void pushViewController(BaseViewController* screen, bool animated);
    void popViewControllerAnimated(bool animated);
    void popToViewControllerWithIndex(qsizetype index, bool animated);
    void insertViewController(BaseViewController* screen, qsizetype index);
    qsizetype indexOfViewController(const BaseViewController* screen) const;
    void showViewControllerAtIndex(qsizetype index);
    void removeLastViewController();

    // The title strip's view (empty frame when there is none) and the buttons screens put in it.
    QRect titleBarFrame() const;
    void removeViewsFromTitleBar();
    void addSubviewToTitleBar(QWidget* view);
    void addBackButton();
    void removeBackButton();
    virtual void addUserButton() {}
    void removeUserButton();
    bool hasUserButton() const { return hasUserButton_; }
    virtual void setHasUserButton(bool) {}
    ButtonWithIcon* backButton() const { return backButton_; }
    ButtonWithIcon* userButton() const { return userButton_; }

    // A warning with one OK button, window-modal, opened without waiting. The first form tells
    // nobody and leaves an alert already on show alone. The second ends the alert on show first
    // (without calling that one's receiver) and calls didEnd when its own alert is dismissed.
    void showAlertWithMessage(const QString& message);
    void showAlertWithMessage(const QString& message, std::function<void()> didEnd);
    QMessageBox* alert() const { return alert_; }
    // Ends the alert on show, if any, without calling its receiver.
    void endAlert();

protected:
    virtual void awakeFromNib();
    // Screens register their observers here, on the default notification centre.
    virtual void signUpForNotifications() {}
    virtual void backButtonDidTouch();

    QWidget* titleBarView() const;
    NavigationViewController* navigator() const;

    bool hasUserButton_ = false;
    QPointer<ButtonWithIcon> userButton_;

private:
    QMessageBox* openAlert(const QString& message);

    AppDelegateInterface* appDelegate_;
    DataManager* dataManager_;
    bool isScreenVisible_ = false;
    QPointer<ButtonWithIcon> backButton_;
    QPointer<QMessageBox> alert_;
};
