#pragma once

#include <QTemporaryDir>

#include "jobs/DataManager.h"
#include "jobs/NotificationNames.h"
#include "support/EventLoop.h"
#include "support/FakePowerAssertion.h"
#include "support/NotificationLog.h"

// A job manager of its own, with its settings and an output folder in temporary folders,
// recording the notifications named.
class JobHarness {
public:
    explicit JobHarness(const QStringList& notifications) : log(center, notifications) {}

    QUrl outputUrl() const { return QUrl::fromLocalFile(output.path()); }
    // Until one of the names has been posted (by default the end of a job of either kind).
    bool waitForAny(const QStringList& names = {NotificationNames::kNotificationDidFinishUploading,
                                                NotificationNames::kNotificationDidFailUploading},
                    int timeoutMs = 60000) {
        return waitUntil([&] { return ends(names) > 0; }, timeoutMs);
    }
    int ends(const QStringList& names = {NotificationNames::kNotificationDidFinishUploading,
                                         NotificationNames::kNotificationDidFailUploading}) const {
        int count = 0;
        for (const QString& name : names) {
            count += log.count(name);
        }
        return count;
    }

    QTemporaryDir settingsDir;
    UserDefaultsManager settings{settingsDir.filePath("settings.conf")};
    NotificationCenter center;
    FakePowerAssertion power;
    DataManager manager{center, power, settings};
    NotificationLog log;
    QTemporaryDir output;
};
