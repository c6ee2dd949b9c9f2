#pragma once

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QObject>
#include <functional>

#include "model/ErrorResponse.h"
#include "model/User.h"

// The login that the service commands share: options --server, --user and --v2, the password
// from the environment or the terminal, and the login through the job manager's session.
class ServiceSession : public QObject {
    Q_OBJECT

public:
    using LoggedIn = std::function<void(const UserPtr& user)>;
    using Failed = std::function<void(const ErrorResponsePtr& error)>;

    explicit ServiceSession(QObject* parent = nullptr);

    void addOptions(QCommandLineParser& parser) const;
    // Takes the options and the password; -1 to go on, else the usage exit status.
    int read(const QCommandLineParser& parser, const QString& command);

    // Logs in; exactly one of the two runs, on the main thread.
    void start(LoggedIn loggedIn, Failed failed);

    const QString& server() const { return server_; }
    const QString& username() const { return username_; }

    // Prints the service's reason on standard error; returns the exit status for it.
    static int reportFailure(const ErrorResponsePtr& error);

private:
    void stopObserving();

    QCommandLineOption serverOption_;
    QCommandLineOption userOption_;
    QCommandLineOption v2Option_;
    QString server_;
    QString username_;
    QString password_;
    bool useV2_ = false;
};
