#include "server/SessionApi.h"

#include <QJsonObject>

#include "server/Accounts.h"
#include "server/Exchange.h"
#include "server/FormChecks.h"

namespace orvale_service {
namespace {

const QStringList kLoginKeys{"connect_un", "connect_pw", "output_format"};
const QStringList kPermissionKeys{"user_id", "auth_token", "output_format"};

}  // namespace

SessionApi::SessionApi(Accounts& accounts) : accounts_(accounts) {}

Endpoints SessionApi::endpoints() {
    return {
        {.name = "get_token",
         .method = "POST",
         .path = "/api/orvale/get_token/",
         .body = BodyKind::Form,
         .knownKeys = kLoginKeys,
         .freeTextKeys = {"connect_un", "connect_pw"},
         .answer = [this](Exchange& exchange) { login(exchange); }},
        {.name = "get_permissions",
         .method = "POST",
         .path = "/api/orvale/get_permissions",
         .body = BodyKind::Form,
         .knownKeys = kPermissionKeys,
         .answer = [this](Exchange& exchange) { permissions(exchange); }},
    };
}

void SessionApi::login(Exchange& exchange) {
    FormChecks::expectPairs(exchange, kLoginKeys);
    if (FormChecks::refuseIfProblems(exchange)) {
        return;
    }
    QString token;
    const auto user =
        accounts_.login(exchange.pair("connect_un"), exchange.pair("connect_pw"), &token);
    if (!user) {
        // A refused login is still a 200 answer: the client tells it by the missing token.
        exchange.answer = QJsonObject{{"root", QJsonObject{
                                                   {"status", "error"},
                                                   {"api_token", ""},
                                                   {"message", "Invalid username or password."},
                                               }}};
        return;
    }
    exchange.answer = QJsonObject{{"root", QJsonObject{
                                               {"status", "success"},
                                               {"api_token", token},
                                               {"user_id", user->value("id")},
                                               {"username", user->value("username")},
                                               {"message", ""},
                                           }}};
}

void SessionApi::permissions(Exchange& exchange) {
    FormChecks::expectPairs(exchange, kPermissionKeys);
    if (FormChecks::refuseIfProblems(exchange)) {
        return;
    }
    const auto user = FormChecks::authorize(exchange, accounts_, exchange.pair("auth_token"));
    if (!user) {
        return;
    }
    const QString userId = exchange.pair("user_id");
    if (userId != QString::number(user->value("id").toInteger())) {
        exchange.problems << QStringLiteral("user_id %1 is not the token's user").arg(userId);
        exchange.refuse(403, QStringLiteral("The auth_token does not belong to this user_id."));
        return;
    }
    QJsonObject root;
    if (user->contains("api_permissions")) {
        root.insert("api_permissions", user->value("api_permissions"));
    }
    exchange.answer = QJsonObject{{"root", root}};
}

}  // namespace orvale_service
