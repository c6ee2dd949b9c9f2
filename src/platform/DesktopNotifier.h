#pragma once

#include <QDBusConnection>
#include <QDBusMessage>

// Desktop notifications through the notification service of the session bus. Sent without
// waiting for the answer, so a missing or slow service never holds the window up. Without a
// session bus nothing is sent and the log says so once.
class DesktopNotifier {
public:
    explicit DesktopNotifier(QDBusConnection bus = QDBusConnection::sessionBus());

    void notify(const QString& summary, const QString& body);

    static QDBusMessage notifyMessage(const QString& summary, const QString& body);

private:
    QDBusConnection bus_;
};
