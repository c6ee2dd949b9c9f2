#include "platform/SleepWatcher.h"

#include <QDBusConnection>
#include <QDBusError>

#include "platform/Log.h"

SleepWatcher::SleepWatcher(QObject* parent) : QObject(parent) {
    QDBusConnection bus = QDBusConnection::systemBus();
    if (!bus.isConnected()) {
        LOG_INFO("Not watching for sleep: no system bus ({})", bus.lastError().message());
        return;
    }
    watching_ = bus.connect(QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
                            QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"), this,
                            SLOT(onPrepareForSleep(bool)));
}

void SleepWatcher::onPrepareForSleep(bool start) {
    if (start) {
        LOG_VERBOSE("The machine is about to sleep");
        emit willSleep();
    }
}
