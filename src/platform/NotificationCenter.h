#pragma once

#include <QHash>
#include <QObject>
#include <functional>
#include <vector>

#include "platform/Notification.h"

// Process-wide named notifications between the job manager and whoever listens (screens,
// the CLI). Observers are delivered to on the main thread only; a post from another thread is
// handed over to the main thread first. An observer is tied to an owner object and goes away
// with it.
class NotificationCenter {
public:
    using Handler = std::function<void(const Notification&)>;

    static NotificationCenter& defaultCenter();

    NotificationCenter() = default;
    NotificationCenter(const NotificationCenter&) = delete;
    NotificationCenter& operator=(const NotificationCenter&) = delete;
    ~NotificationCenter();

    void addObserver(QObject* owner, const QString& name, Handler handler);
    void removeObserver(const QObject* owner);
    void removeObserver(const QObject* owner, const QString& name);

    void post(const QString& name, const QVariant& object = {}, const QVariantMap& userInfo = {});

private:
    struct Observer {
        quint64 id;
        const QObject* owner;
        QString name;
        Handler handler;
    };

    void deliver(const Notification& notification);
    bool isRegistered(quint64 id) const;
    void forgetOwnerIfUnused(const QObject* owner);

    std::vector<Observer> observers_;
    QHash<const QObject*, QMetaObject::Connection> ownerWatches_;
    quint64 nextId_ = 1;
};
