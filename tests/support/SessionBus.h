#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QList>
#include <QProcess>

// A session bus of the test's own: a dbus-daemon on a private socket, stopped when the object
// goes away, so that nothing reaches the desktop of whoever runs the tests.
class SessionBus {
public:
    SessionBus();
    ~SessionBus();
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;

    bool isRunning() const { return !address_.isEmpty(); }
    // A new connection to the bus under a name of the caller's choice.
    QDBusConnection connect(const QString& name);

private:
    QProcess daemon_;
    QString address_;
    QStringList connectionNames_;
};

// Listens on a connection of its own: a broadcast signal, and every method call to
// a service name it takes over (answered with an empty reply).
class BusListener : public QDBusVirtualObject {
    Q_OBJECT

public:
    explicit BusListener(QDBusConnection connection) : connection_(std::move(connection)) {}

    bool listenForSignal(const QString& interface, const QString& name);
    bool serve(const QString& service, const QString& path);

    QList<QDBusMessage> received;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

public slots:
    void record(const QDBusMessage& message) { received << message; }

private:
    QDBusConnection connection_;
};
