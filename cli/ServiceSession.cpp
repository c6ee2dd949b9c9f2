#include "ServiceSession.h"

#include "Command.h"
#include "ConsoleOutput.h"
#include "PasswordPrompt.h"
#include "jobs/DataManager.h"
#include "jobs/NotificationNames.h"

using namespace NotificationNames;

ServiceSession::ServiceSession(QObject* parent)
    : QObject(parent),
      serverOption_(QStringLiteral("server"),
                    QStringLiteral("The service's site, e.g. media.example.org or 127.0.0.1:8080."),
                    QStringLiteral("ADDRESS")),
      userOption_(QStringLiteral("user"), QStringLiteral("User name on the service."),
                  QStringLiteral("NAME")),
      v2Option_(QStringLiteral("v2"),
                QStringLiteral("Use the service's second API generation after logging in.")) {}

void ServiceSession::addOptions(QCommandLineParser& parser) const {
    parser.addOptions({serverOption_, userOption_, v2Option_});
}

int ServiceSession::read(const QCommandLineParser& parser, const QString& command) {
    server_ = parser.value(serverOption_).trimmed();
    username_ = parser.value(userOption_);
    useV2_ = parser.isSet(v2Option_);
    if (server_.isEmpty()) {
        return ConsoleOutput::usageError(command, QStringLiteral("--server ADDRESS is required"));
    }
    if (username_.isEmpty()) {
        return ConsoleOutput::usageError(command, QStringLiteral("--user NAME is required"));
    }
    QString error;
    const auto password = PasswordPrompt::read(
        QStringLiteral("Password for %1 at %2: ").arg(username_, server_), &error);
    if (!password) {
        return ConsoleOutput::usageError(command, error);
    }
    password_ = *password;
    return -1;
}

void ServiceSession::start(LoggedIn loggedIn, Failed failed) {
    NotificationCenter& center = NotificationCenter::defaultCenter();
    center.addObserver(this, kNotificationDidFinishLoggingIn,
                       [this, loggedIn](const Notification& notification) {
                           stopObserving();
                           loggedIn(notification.object.value<UserPtr>());
                       });
    center.addObserver(this, kNotificationDidFailLoggingIn,
                       [this, failed](const Notification& notification) {
                           stopObserving();
                           failed(notification.object.value<ErrorResponsePtr>());
                       });
    DataManager& manager = DataManager::sharedInstance();
    manager.loginWithOrvaleUrl(server_, username_, password_, false);
    password_.clear();  // the session holds it until the answer is in
    if (useV2_) {
        // Logins always go to the first generation; the calls after it use the second.
        manager.setIsUsingV2(true);
    }
}

int ServiceSession::reportFailure(const ErrorResponsePtr& error) {
    const QString message = error && !error->message.isEmpty()
                                ? error->message
                                : QStringLiteral("The service refused without saying why.");
    ConsoleOutput::err(message + QLatin1Char('\n'));
    return Command::exitServiceFailure;
}

void ServiceSession::stopObserving() {
    NotificationCenter::defaultCenter().removeObserver(this, kNotificationDidFinishLoggingIn);
    NotificationCenter::defaultCenter().removeObserver(this, kNotificationDidFailLoggingIn);
}
