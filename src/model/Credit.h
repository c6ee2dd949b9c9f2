#pragma once

#include <QJsonObject>
#include <QList>
#include <QMetaType>
#include <QString>
#include <memory>

// A credit field (a named attribute such as a role) that can be filled in for a media-library
// upload. Shared by identity: the metadata view writes the typed value into the same record
// that the upload later reads.
struct Credit {
    using Ptr = std::shared_ptr<Credit>;

    Credit() = default;
    Credit(const Credit&) = delete;
    Credit& operator=(const Credit&) = delete;

    // An item of the service's "media_attribute_type" list: "id", "attribute_name", "status".
    static Ptr fromJson(const QJsonObject& item);

    qint32 ID = 0;
    QString name;
    // As the service sends it.
    QString status;
    // What the user typed; empty credits are not sent.
    QString stringValue;
};

using CreditPtr = Credit::Ptr;
using CreditList = QList<CreditPtr>;

Q_DECLARE_METATYPE(CreditPtr)
