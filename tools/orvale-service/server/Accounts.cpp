#include "server/Accounts.h"

#include <QRandomGenerator>

#include "server/Fixture.h"

namespace orvale_service {
namespace {

QString randomToken() {
    QString token;
    for (int i = 0; i < 4; ++i) {
        token += QStringLiteral("%1").arg(QRandomGenerator::global()->generate(), 8, 16,
                                          QLatin1Char('0'));
    }
    return token;
}

}  // namespace

Accounts::Accounts(const Fixture& fixture) : fixture_(fixture) {
    for (const QJsonValue& user : fixture.users()) {
        const QString token = user.toObject().value(QLatin1String("api_token")).toString();
        if (!token.isEmpty()) {
            tokens_.insert(token, user.toObject().value(QLatin1String("id")).toInteger());
        }
    }
}

std::optional<QJsonObject> Accounts::login(const QString& username, const QString& password,
                                           QString* token) {
    const auto user = fixture_.userNamed(username);
    if (!user || user->value(QLatin1String("password")).toString() != password) {
        return std::nullopt;
    }
    *token = user->value(QLatin1String("api_token")).toString();
    if (token->isEmpty()) {
        *token = randomToken();
    }
    std::lock_guard<std::mutex> guard(mutex_);
    tokens_.insert(*token, user->value(QLatin1String("id")).toInteger());
    return user;
}

std::optional<QJsonObject> Accounts::userForToken(const QString& token) const {
    std::lock_guard<std::mutex> guard(mutex_);
    const auto found = tokens_.constFind(token);
    if (token.isEmpty() || found == tokens_.constEnd()) {
        return std::nullopt;
    }
    return fixture_.userWithId(found.value());
}

}  // namespace orvale_service
