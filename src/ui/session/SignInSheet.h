#pragma once

#include <QDialog>
#include <memory>

class DataManager;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
struct Notification;

namespace Ui {
class SignInSheet;
}

// Signs in to the service: its address as the user types it (a host, maybe with a port or a
// path), the user name, the password and "Remember me". Opened over the window without
// blocking it; closes itself once signed in, and shows the service's own words when refused.
//
// The password lives in its field only until the login's answer arrives; it is then cleared,
// whatever the answer. With "Remember me" the address and user name fill the sheet next time.
class SignInSheet : public QDialog {
    Q_OBJECT

public:
    SignInSheet(DataManager& dataManager, QWidget* parent);
    ~SignInSheet() override;

    // Starts the login with what is typed; says what is missing instead when something is.
    void signIn();
    bool isWaitingForAnswer() const { return waiting_; }

    QLineEdit* addressField() const;
    QLineEdit* usernameField() const;
    QLineEdit* passwordField() const;
    QCheckBox* rememberCheckbox() const;
    QLabel* messageLabel() const;
    QPushButton* signInButton() const;

    void reject() override;

private:
    void fillInRememberedUser();
    void didFinishLoggingIn();
    void didFailLoggingIn(const Notification& notification);
    void setWaiting(bool waiting);
    void showMessage(const QString& message, bool isProblem);

    std::unique_ptr<Ui::SignInSheet> ui_;
    DataManager& dataManager_;
    bool waiting_ = false;
};
