#pragma once

#include <QJsonArray>
#include <QTemporaryDir>

#include "jobs/DataManager.h"
#include "jobs/NotificationNames.h"
#include "support/EventLoop.h"
#include "support/FakePowerAssertion.h"
#include "support/NotificationLog.h"
#include "support/ServiceProcess.h"

struct SessionHarnessOptions {
    QStringList serviceArguments;
    bool shouldUseV2 = false;
};

// A job manager of its own, with a settings store in a temporary folder, talking to a running
// orvale-service; records every session notification it posts.
class SessionHarness {
public:
    explicit SessionHarness(const SessionHarnessOptions& options = {})
        : service(options.serviceArguments),
          defaults(settingsFileWith(settingsDir, options.shouldUseV2)),
          manager(center, power, defaults),
          log(center, allNames()) {}

    QString settingsFile() const { return settingsDir.filePath("Orvale.ini"); }

    // The first notification of that name, waiting for it if need be; an empty one on time-out.
    Notification waitFor(const QString& name, int timeoutMs = 10000) {
        waitUntil([&] { return log.count(name) > 0; }, timeoutMs);
        for (const Notification& notification : log.received) {
            if (notification.name == name) {
                return notification;
            }
        }
        return {};
    }

    bool logIn(const QString& user, const QString& password, bool remember = false) {
        manager.loginWithOrvaleUrl(service.host(), user, password, remember);
        waitUntil([&] {
            return log.count(NotificationNames::kNotificationDidFinishLoggingIn) +
                       log.count(NotificationNames::kNotificationDidFailLoggingIn) >
                   0;
        });
        return log.count(NotificationNames::kNotificationDidFinishLoggingIn) > 0;
    }

    ServiceProcess service;
    QTemporaryDir settingsDir;
    UserDefaultsManager defaults;
    NotificationCenter center;
    FakePowerAssertion power;
    DataManager manager;
    NotificationLog log;

private:
    static QString settingsFileWith(const QTemporaryDir& dir, bool shouldUseV2) {
        const QString path = dir.filePath("Orvale.ini");
        if (shouldUseV2) {
            QSettings(path, QSettings::IniFormat).setValue("shouldUseV2", true);
        }
        return path;
    }

    static QStringList allNames() {
        using namespace NotificationNames;
        return {kNotificationDidFinishLoggingIn,
                kNotificationDidFailLoggingIn,
                kNotificationDidFinishLoggingOut,
                kNotificationDidFinishLoadingPermissions,
                kNotificationDidFailLoadingPermissions,
                kNotificationDidFinishLoadingMediaLibraryCategories,
                kNotificationDidFailLoadingMediaLibraryCategories,
                kNotificationDidFinishLoadingProjectList,
                kNotificationDidFailLoadingProjectList,
                kNotificationDidFinishLoadngCreditsForCategory,
                kNotificationDidFailLoadngCreditsForCategory,
                kNotificationDidFinishLoadingFoldersForProject,
                kNotificationDidFailLoadingFoldersForProject};
    }
};
