#pragma once

#include <QHash>
#include <QJsonObject>
#include <QString>
#include <mutex>
#include <optional>

namespace orvale_service {

class Fixture;

// Logins and the tokens they hand out. A fixture user may name a fixed "api_token", valid from
// the start (handy with curl); otherwise every login issues a fresh random one. Tokens stay valid
// until the server ends.
class Accounts {
public:
    explicit Accounts(const Fixture& fixture);

    // The user and their token when the name and password match a fixture user exactly.
    std::optional<QJsonObject> login(const QString& username, const QString& password,
                                     QString* token);
    std::optional<QJsonObject> userForToken(const QString& token) const;

private:
    const Fixture& fixture_;
    mutable std::mutex mutex_;
    QHash<QString, qint64> tokens_;  // token -> user id
};

}  // namespace orvale_service
