#include "platform/LogindPowerAssertion.h"

#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusReply>

#include "platform/Log.h"

namespace {
constexpr int noSystemBus = 1;
constexpr int refused = 2;
}  // namespace

LogindPowerAssertion& LogindPowerAssertion::sharedInstance() {
    static LogindPowerAssertion instance;
    return instance;
}

int LogindPowerAssertion::create(const QString& name, quint32& handle) {
    QDBusConnection bus = QDBusConnection::systemBus();
    if (!bus.isConnected()) {
        LOG_INFO("No idle-sleep assertion \"{}\": no system bus ({})", name, bus.lastError().message());
        return noSystemBus;
    }
    QDBusInterface manager(QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
                           QStringLiteral("org.freedesktop.login1.Manager"), bus);
    const QDBusReply<QDBusUnixFileDescriptor> reply =
        manager.call(QStringLiteral("Inhibit"), QStringLiteral("idle"), QStringLiteral("Orvale"), name,
                     QStringLiteral("block"));
    if (!reply.isValid() || !reply.value().isValid()) {
        LOG_WARNING("No idle-sleep assertion \"{}\": logind said {}", name, reply.error().message());
        return refused;
    }
    handle = nextHandle_++;
    held_.insert(handle, reply.value());
    return 0;
}

void LogindPowerAssertion::release(quint32 handle) {
    // Closing the last copy of the descriptor ends the inhibitor lock.
    held_.remove(handle);
}
