#pragma once

#include "Command.h"
#include "ServiceSession.h"

// orvale-cli login --server ADDRESS --user NAME [--v2]
// Logs in and loads the user's rights, which also proves that the session token works.
class LoginCommand : public Command {
    Q_OBJECT

public:
    using Command::Command;

    int parse(const QStringList& arguments) override;
    void start() override;

private:
    void onLoggedIn(const UserPtr& user);
    void onPermissionsLoaded();
    void finishWith(int exitStatus);

    ServiceSession session_{this};
    UserPtr user_;
};
