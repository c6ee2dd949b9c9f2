#include "platform/DesktopNotifier.h"

#include <QDBusError>

#include "platform/Log.h"

namespace {

// The desktop decides how long a notification stays.
constexpr qint32 kServerChoosesTimeout = -1;

}  // namespace

DesktopNotifier::DesktopNotifier(QDBusConnection bus) : bus_(std::move(bus)) {
    if (!bus_.isConnected()) {
        LOG_INFO("No session bus: jobs end without desktop notifications ({})",
                 bus_.lastError().message());
    }
}

QDBusMessage DesktopNotifier::notifyMessage(const QString& summary, const QString& body) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"),
        QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    // The desktop file's name lets the desktop show the application's own icon.
    message << QStringLiteral("Orvale") << quint32(0) << QStringLiteral("orvale") << summary << body
            << QStringList()
            << QVariantMap{{QStringLiteral("desktop-entry"), QStringLiteral("orvale")}}
            << kServerChoosesTimeout;
    return message;
}

void DesktopNotifier::notify(const QString& summary, const QString& body) {
    if (bus_.isConnected()) {
        LOG_VERBOSE("Notifying: {}: {}", summary, body);
        bus_.send(notifyMessage(summary, body));
    }
}
