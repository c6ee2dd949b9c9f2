#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <optional>

// The job's progress on the application's launcher icon, where the desktop draws it: the
// launcher-entry signal "Update" on the session bus for application://orvale.desktop. Without a
// session bus nothing is sent and the log says so once.
class LauncherProgress {
public:
    static inline const QString kApplicationURI = QStringLiteral("application://orvale.desktop");

    explicit LauncherProgress(QDBusConnection bus = QDBusConnection::sessionBus());

    // A fraction from 0 to 1 shows the bar; none hides it. Repeats of the same whole percent
    // send nothing, so a chatty job does not flood the bus.
    void setProgress(std::optional<double> fraction);

    static QDBusMessage updateMessage(std::optional<double> fraction);

private:
    QDBusConnection bus_;
    std::optional<int> shownPercent_;
};
