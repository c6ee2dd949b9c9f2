#pragma once

#include <QJsonArray>

#include "support/JobHarness.h"
#include "support/ServiceProcess.h"

struct SessionHarnessOptions {
    QStringList serviceArguments;
    bool shouldUseV2 = false;
};

// A job manager of its own talking to a running orvale-service; records the session
// notifications it posts.
class SessionHarness : public JobHarness {
public:
    explicit SessionHarness(const SessionHarnessOptions& options = {})
        : JobHarness(sessionNames(), options.shouldUseV2), service(options.serviceArguments) {}

    bool logIn(const QString& user, const QString& password, bool remember = false) {
        using namespace NotificationNames;
        manager.loginWithOrvaleUrl(service.host(), user, password, remember);
        waitForAny({kNotificationDidFinishLoggingIn, kNotificationDidFailLoggingIn}, 10000);
        return log.count(kNotificationDidFinishLoggingIn) > 0;
    }

    ServiceProcess service;
    UserDefaultsManager& defaults = settings;

private:
    static QStringList sessionNames() {
        using namespace NotificationNames;
        return {
            kNotificationDidFinishLoggingIn,        kNotificationDidFailLoggingIn,
            kNotificationDidFinishLoggingOut,       kNotificationDidFinishLoadingPermissions,
            kNotificationDidFailLoadingPermissions, kNotificationDidFinishLoadingProjectList,
            kNotificationDidFailLoadingProjectList, kNotificationDidFailLoadngCreditsForCategory};
    }
};
