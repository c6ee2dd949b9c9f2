#include "LoginCommand.h"

#include "ConsoleOutput.h"
#include "jobs/DataManager.h"
#include "jobs/NotificationNames.h"

using namespace NotificationNames;

namespace {

QString yesNo(bool value) { return value ? QStringLiteral("yes") : QStringLiteral("no"); }

}  // namespace

int LoginCommand::parse(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Logs in to the service and shows the user's upload rights.\n"
                       "The password is read from $ORVALE_PASSWORD, else asked for."));
    session_.addOptions(parser);
    parser.addHelpOption();
    if (!parser.parse(arguments)) {
        return ConsoleOutput::usageError(QStringLiteral("login"), parser.errorText());
    }
    if (parser.isSet(QStringLiteral("help"))) {
        ConsoleOutput::out(parser.helpText());
        return exitSuccess;
    }
    if (!parser.positionalArguments().isEmpty()) {
        return ConsoleOutput::usageError(
            QStringLiteral("login"),
            QStringLiteral("unexpected argument '%1'").arg(parser.positionalArguments().first()));
    }
    return session_.read(parser, QStringLiteral("login"));
}

void LoginCommand::start() {
    session_.start([this](const UserPtr& user) { onLoggedIn(user); },
                   [this](const ErrorResponsePtr& error) {
                       finishWith(ServiceSession::reportFailure(error));
                   });
}

void LoginCommand::onLoggedIn(const UserPtr& user) {
    user_ = user;
    NotificationCenter& center = NotificationCenter::defaultCenter();
    center.addObserver(this, kNotificationDidFinishLoadingPermissions,
                       [this](const Notification&) { onPermissionsLoaded(); });
    center.addObserver(
        this, kNotificationDidFailLoadingPermissions, [this](const Notification& notification) {
            finishWith(
                ServiceSession::reportFailure(notification.object.value<ErrorResponsePtr>()));
        });
    DataManager::sharedInstance().loadPermissions();
}

void LoginCommand::onPermissionsLoaded() {
    const DataManager& manager = DataManager::sharedInstance();
    ConsoleOutput::out(
        QStringLiteral("Logged in to %1 as %2 (user %3)\n")
            .arg(session_.server(), session_.username(), QString::number(user_->ID)));
    ConsoleOutput::out(
        QStringLiteral("Upload to projects: %1\nUpload to the media library: %2\n")
            .arg(yesNo(manager.hasProjectsAccess()), yesNo(manager.hasMediaLibAccess())));
    finishWith(exitSuccess);
}

void LoginCommand::finishWith(int exitStatus) {
    NotificationCenter::defaultCenter().removeObserver(this);
    emit finished(exitStatus);
}
