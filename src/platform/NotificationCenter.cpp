#include "platform/NotificationCenter.h"

#include <QCoreApplication>
#include <QThread>
#include <algorithm>

NotificationCenter& NotificationCenter::defaultCenter() {
    static NotificationCenter center;
    return center;
}

NotificationCenter::~NotificationCenter() {
    for (const auto& connection : std::as_const(ownerWatches_)) {
        QObject::disconnect(connection);
    }
}

void NotificationCenter::addObserver(QObject* owner, const QString& name, Handler handler) {
    observers_.push_back({nextId_++, owner, name, std::move(handler)});
    if (!ownerWatches_.contains(owner)) {
        ownerWatches_.insert(owner, QObject::connect(owner, &QObject::destroyed, [this, owner] {
                                 removeObserver(owner);
                             }));
    }
}

void NotificationCenter::removeObserver(const QObject* owner) {
    std::erase_if(observers_, [owner](const Observer& o) { return o.owner == owner; });
    forgetOwnerIfUnused(owner);
}

void NotificationCenter::removeObserver(const QObject* owner, const QString& name) {
    std::erase_if(observers_, [owner, &name](const Observer& o) { return o.owner == owner && o.name == name; });
    forgetOwnerIfUnused(owner);
}

void NotificationCenter::forgetOwnerIfUnused(const QObject* owner) {
    const bool stillObserving =
        std::any_of(observers_.begin(), observers_.end(), [owner](const Observer& o) { return o.owner == owner; });
    if (!stillObserving) {
        QObject::disconnect(ownerWatches_.take(owner));
    }
}

void NotificationCenter::post(const QString& name, const QVariant& object, const QVariantMap& userInfo) {
    Notification notification{name, object, userInfo};
    QCoreApplication* app = QCoreApplication::instance();
    if (app != nullptr && QThread::currentThread() != app->thread()) {
        QMetaObject::invokeMethod(app, [this, notification] { deliver(notification); }, Qt::QueuedConnection);
        return;
    }
    deliver(notification);
}

bool NotificationCenter::isRegistered(quint64 id) const {
    return std::any_of(observers_.begin(), observers_.end(), [id](const Observer& o) { return o.id == id; });
}

void NotificationCenter::deliver(const Notification& notification) {
    // Handlers may add or remove observers, so walk a snapshot and skip the ones removed meanwhile.
    std::vector<std::pair<quint64, Handler>> matching;
    for (const Observer& observer : observers_) {
        if (observer.name == notification.name) {
            matching.emplace_back(observer.id, observer.handler);
        }
    }
    for (const auto& [id, handler] : matching) {
        if (isRegistered(id)) {
            handler(notification);
        }
    }
}
