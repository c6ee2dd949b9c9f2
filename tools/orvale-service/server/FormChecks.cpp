#include "server/FormChecks.h"

#include <QJsonArray>

#include "server/Accounts.h"
#include "server/Exchange.h"
#include "server/FormBody.h"

namespace orvale_service {

void FormChecks::expectPairs(Exchange& exchange, const QStringList& required,
                             const QStringList& optional) {
    const QString type = exchange.contentType.section(QLatin1Char(';'), 0, 0).trimmed();
    if (!type.isEmpty() && type != QLatin1String("application/x-www-form-urlencoded")) {
        exchange.problems << QStringLiteral("a form body labelled %1").arg(exchange.contentType);
    }
    exchange.problems << FormBody::keyProblems(exchange.pairs, required, optional);
    const bool wantsFormat = required.contains(QLatin1String("output_format"));
    const QString format = exchange.pair(QStringLiteral("output_format"));
    if (wantsFormat && !format.isNull() && format != QLatin1String("json")) {
        exchange.problems << QStringLiteral("output_format is \"%1\", not \"json\"").arg(format);
    }
}

bool FormChecks::refuseIfProblems(Exchange& exchange) {
    if (exchange.problems.isEmpty()) {
        return false;
    }
    exchange.refuse(400, exchange.problems.join(QLatin1String("; ")));
    return true;
}

std::optional<QJsonObject> FormChecks::authorize(Exchange& exchange, const Accounts& accounts,
                                                 const QString& token) {
    auto user = accounts.userForToken(token);
    if (!user) {
        exchange.problems << QStringLiteral("unknown auth_token \"%1\"").arg(token);
        exchange.refuse(401, QStringLiteral("Invalid or expired auth_token."));
    }
    return user;
}

bool FormChecks::hasAccess(const QJsonObject& user, const QString& table) {
    bool access = false;
    const QJsonObject permissions = user.value(QLatin1String("api_permissions")).toObject();
    for (const QJsonValue& entry : permissions.value(QLatin1String("tables")).toArray()) {
        if (entry.toObject().value(QLatin1String("table")).toString() == table) {
            access = entry.toObject().value(QLatin1String("access")).toBool();
        }
    }
    return access;
}

}  // namespace orvale_service
