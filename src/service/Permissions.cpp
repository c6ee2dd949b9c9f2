#include "service/Permissions.h"

#include "model/ValidObjects.h"

Permissions Permissions::fromRoot(const QJsonObject& root) {
    Permissions permissions;
    const auto apiPermissions =
        ValidObjects::dictionaryForKey(root, QStringLiteral("api_permissions"));
    if (!apiPermissions) {
        return permissions;
    }
    const QJsonArray tables =
        ValidObjects::arrayForKey(*apiPermissions, QStringLiteral("tables")).value_or(QJsonArray());
    // The service may name a table more than once; its last word counts.
    for (const QJsonValue& entry : tables) {
        const QJsonObject table = entry.toObject();
        const QString name = ValidObjects::stringForKey(table, QStringLiteral("table"));
        const bool access = ValidObjects::boolForKey(table, QStringLiteral("access"));
        if (name == QLatin1String("projects")) {
            permissions.hasProjectsAccess = access;
        } else if (name == QLatin1String("media")) {
            permissions.hasMediaLibAccess = access;
        }
    }
    return permissions;
}
