#pragma once

#include <QObject>
#include <QStringList>

#include "platform/NotificationCenter.h"

// Records the names (and objects) of the notifications a job posts, in order.
class NotificationLog : public QObject {
public:
    NotificationLog(NotificationCenter& center, const QStringList& names) {
        for (const QString& name : names) {
            center.addObserver(this, name, [this](const Notification& n) { received.append(n); });
        }
    }
    QStringList names() const {
        QStringList list;
        for (const Notification& n : received) {
            list << n.name;
        }
        return list;
    }
    int count(const QString& name) const { return static_cast<int>(names().count(name)); }
    QList<float> percents() const {
        QList<float> list;
        for (const Notification& n : received) {
            if (n.name == QLatin1String("kNotificationDidChangeEncodedPercent")) {
                list << n.object.toFloat();
            }
        }
        return list;
    }

    QList<Notification> received;
};
