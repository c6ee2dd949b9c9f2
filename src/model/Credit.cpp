#include "model/Credit.h"

#include "model/ValidObjects.h"

CreditPtr Credit::fromJson(const QJsonObject& item) {
    auto credit = std::make_shared<Credit>();
    credit->ID = ValidObjects::intForKey(item, QStringLiteral("id"));
    credit->name = ValidObjects::stringForKey(item, QStringLiteral("attribute_name"));
    credit->status = ValidObjects::stringForKey(item, QStringLiteral("status"));
    return credit;
}
