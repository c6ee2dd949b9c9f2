#include "support/SessionBus.h"

SessionBus::SessionBus() {
    daemon_.start(QStringLiteral("dbus-daemon"),
                  {QStringLiteral("--session"), QStringLiteral("--nofork"),
                   QStringLiteral("--nopidfile"), QStringLiteral("--print-address=1")});
    if (daemon_.waitForStarted(10000) && daemon_.waitForReadyRead(10000)) {
        address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
    }
}

SessionBus::~SessionBus() {
    for (const QString& name : connectionNames_) {
        QDBusConnection::disconnectFromBus(name);
    }
    daemon_.kill();
    daemon_.waitForFinished();
}

QDBusConnection SessionBus::connect(const QString& name) {
    connectionNames_ << name;
    return QDBusConnection::connectToBus(address_, name);
}

bool BusListener::listenForSignal(const QString& interface, const QString& name) {
    return connection_.connect(QString(), QString(), interface, name, this,
                               SLOT(record(QDBusMessage)));
}

bool BusListener::serve(const QString& service, const QString& path) {
    return connection_.registerService(service) && connection_.registerVirtualObject(path, this);
}

bool BusListener::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    received << message;
    connection.send(message.createReply());
    return true;
}
