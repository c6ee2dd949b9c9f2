#pragma once

#include <QJsonObject>
#include <QStringList>
#include <optional>

namespace orvale_service {

class Accounts;
struct Exchange;

// The checks every form endpoint makes of what the client sent.
class FormChecks {
public:
    // Notes a problem for each missing, repeated or unexpected pair, for an "output_format" other
    // than "json", and for a content type other than the standard form type (or none).
    static void expectPairs(Exchange& exchange, const QStringList& required,
                            const QStringList& optional = {});
    // Answers 400 with the problems found so far; false when there were none.
    static bool refuseIfProblems(Exchange& exchange);
    // The user of the request's "auth_token"; answers 401 when there is none.
    static std::optional<QJsonObject> authorize(Exchange& exchange, const Accounts& accounts,
                                                const QString& token);
    // Whether the user's "api_permissions" grant the table; a later entry overrides an earlier.
    static bool hasAccess(const QJsonObject& user, const QString& table);
};

}  // namespace orvale_service
