#pragma once

#include <QString>
#include <QVariant>
#include <QVariantMap>

// A named event with an optional object and user-info map.
struct Notification {
    QString name;
    QVariant object;
    QVariantMap userInfo;
};
