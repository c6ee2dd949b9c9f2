#pragma once

#include <QSettings>
#include <QTemporaryDir>
#include <numeric>

#include "jobs/DataManager.h"
#include "jobs/NotificationNames.h"
#include "support/EventLoop.h"
#include "support/FakePowerAssertion.h"
#include "support/NotificationLog.h"

// A job manager of its own, with its settings and an output folder in temporary folders,
// recording the notifications named.
class JobHarness {
public:
    explicit JobHarness(const QStringList& notifications, bool shouldUseV2 = false)
        : settings(settingsFileWith(settingsDir, shouldUseV2)), log(center, notifications) {}

    QUrl outputUrl() const { return QUrl::fromLocalFile(output.path()); }
    QString settingsFile() const { return settingsDir.filePath("settings.conf"); }
    // Until one of the names has been posted (by default the end of a job of either kind).
    bool waitForAny(const QStringList& names = {NotificationNames::kNotificationDidFinishUploading,
                                                NotificationNames::kNotificationDidFailUploading},
                    int timeoutMs = 60000) {
        return waitUntil([&] { return ends(names) > 0; }, timeoutMs);
    }
    // The first notification of that name, waiting for it if need be; an empty one on time-out.
    Notification waitFor(const QString& name, int timeoutMs = 10000) {
        waitUntil([&] { return log.count(name) > 0; }, timeoutMs);
        const qsizetype at = log.names().indexOf(name);
        return at >= 0 ? log.received.at(at) : Notification{};
    }
    int ends(const QStringList& names = {NotificationNames::kNotificationDidFinishUploading,
                                         NotificationNames::kNotificationDidFailUploading}) const {
        return std::accumulate(names.begin(), names.end(), 0,
                               [&](int sum, const QString& name) { return sum + log.count(name); });
    }

    QTemporaryDir settingsDir;
    UserDefaultsManager settings;
    NotificationCenter center;
    FakePowerAssertion power;
    DataManager manager{center, power, settings};
    NotificationLog log;
    QTemporaryDir output;

private:
    static QString settingsFileWith(const QTemporaryDir& dir, bool shouldUseV2) {
        const QString path = dir.filePath("settings.conf");
        if (shouldUseV2) {
            QSettings(path, QSettings::IniFormat).setValue("shouldUseV2", true);
        }
        return path;
    }
};
