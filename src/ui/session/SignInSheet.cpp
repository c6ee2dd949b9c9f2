#include "ui/session/SignInSheet.h"

#include <QPushButton>

#include "jobs/DataManager.h"
#include "jobs/NotificationNames.h"
#include "platform/NotificationCenter.h"
#include "ui_SignInSheet.h"

using namespace NotificationNames;

SignInSheet::SignInSheet(DataManager& dataManager, QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::SignInSheet>()), dataManager_(dataManager) {
    ui_->setupUi(this);
    setWindowModality(Qt::WindowModal);
    ui_->buttonBox->button(QDialogButtonBox::Ok)->setText(QStringLiteral("Sign in"));
    ui_->messageLabel->hide();
    connect(ui_->buttonBox, &QDialogButtonBox::accepted, this, &SignInSheet::signIn);
    connect(ui_->buttonBox, &QDialogButtonBox::rejected, this, &SignInSheet::reject);

    NotificationCenter& center = NotificationCenter::defaultCenter();
    center.addObserver(this, kNotificationDidFinishLoggingIn,
                       [this](const Notification&) { didFinishLoggingIn(); });
    center.addObserver(
        this, kNotificationDidFailLoggingIn,
        [this](const Notification& notification) { didFailLoggingIn(notification); });
    fillInRememberedUser();
}

SignInSheet::~SignInSheet() { NotificationCenter::defaultCenter().removeObserver(this); }

QLineEdit* SignInSheet::addressField() const { return ui_->addressField; }
QLineEdit* SignInSheet::usernameField() const { return ui_->usernameField; }
QLineEdit* SignInSheet::passwordField() const { return ui_->passwordField; }
QCheckBox* SignInSheet::rememberCheckbox() const { return ui_->rememberCheckbox; }
QLabel* SignInSheet::messageLabel() const { return ui_->messageLabel; }
QPushButton* SignInSheet::signInButton() const {
    return ui_->buttonBox->button(QDialogButtonBox::Ok);
}

void SignInSheet::fillInRememberedUser() {
    const auto remembered = dataManager_.userDefaultsManager().rememberedUser();
    if (!remembered) {
        ui_->addressField->setFocus();
        return;
    }
    ui_->addressField->setText(remembered->orvaleUrl);
    ui_->usernameField->setText(remembered->username);
    ui_->rememberCheckbox->setChecked(true);
    ui_->passwordField->setFocus();
}

void SignInSheet::signIn() {
    if (waiting_) {
        return;
    }
    const QString address = ui_->addressField->text().trimmed();
    const QString username = ui_->usernameField->text().trimmed();
    if (address.isEmpty() || username.isEmpty()) {
        showMessage(QStringLiteral("Enter the service address and your user name."), true);
        (address.isEmpty() ? ui_->addressField : ui_->usernameField)->setFocus();
        return;
    }
    setWaiting(true);
    showMessage(QStringLiteral("Signing in..."), false);
    dataManager_.loginWithOrvaleUrl(address, username, ui_->passwordField->text(),
                                    ui_->rememberCheckbox->isChecked());
}

void SignInSheet::didFinishLoggingIn() {
    if (!waiting_) {
        return;
    }
    ui_->passwordField->clear();
    setWaiting(false);
    accept();
}

void SignInSheet::didFailLoggingIn(const Notification& notification) {
    if (!waiting_) {
        return;
    }
    ui_->passwordField->clear();
    setWaiting(false);
    showMessage(ErrorResponse::messageOr(notification.object.value<ErrorResponsePtr>(),
                                         QStringLiteral("The service refused without saying why.")),
                true);
    ui_->passwordField->setFocus();
}

// Closed while the answer is out: the login is given up, so it cannot sign the user in later.
void SignInSheet::reject() {
    ui_->passwordField->clear();
    if (waiting_) {
        setWaiting(false);
        dataManager_.logout();
    }
    QDialog::reject();
}

void SignInSheet::setWaiting(bool waiting) {
    waiting_ = waiting;
    for (QWidget* input :
         std::initializer_list<QWidget*>{ui_->addressField, ui_->usernameField, ui_->passwordField,
                                         ui_->rememberCheckbox, signInButton()}) {
        input->setEnabled(!waiting);
    }
}

void SignInSheet::showMessage(const QString& message, bool isProblem) {
    ui_->messageLabel->setStyleSheet(
        QStringLiteral("color: %1;")
            .arg(isProblem ? QStringLiteral("#c0392b") : QStringLiteral("#8a9199")));
    ui_->messageLabel->setText(message);
    ui_->messageLabel->show();
}
