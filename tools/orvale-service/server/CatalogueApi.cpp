#include "server/CatalogueApi.h"

#include <QJsonObject>
#include <QRegularExpression>
#include <algorithm>

#include "server/Exchange.h"
#include "server/Fixture.h"
#include "server/FormChecks.h"

namespace orvale_service {
namespace {

const QStringList kListKeys{"section", "auth_token", "output_format"};
const QStringList kFilteredKeys{"section", "where", "order_by", "auth_token", "output_format"};

// The sections a client may ask for, with the field its "where" must name (empty: no filter).
const QList<QPair<QString, QString>> kSections{
    {"media_type", ""},
    {"media_attribute_type", "media_type_id"},
    {"project", ""},
    {"project_category", "project_id"},
};

double numberOf(const QJsonValue& value) {
    return value.isString() ? value.toString().toDouble() : value.toDouble();
}

}  // namespace

CatalogueApi::CatalogueApi(const Fixture& fixture, const Accounts& accounts)
    : fixture_(fixture), accounts_(accounts) {}

Endpoints CatalogueApi::endpoints() {
    return {{.name = "select_all",
             .method = "POST",
             .path = "/api/main/select_all/",
             .body = BodyKind::Form,
             .knownKeys = kFilteredKeys,
             .answer = [this](Exchange& exchange) { selectAll(exchange); },
             .section = [](const Exchange& exchange) { return exchange.pair("section"); }}};
}

void CatalogueApi::selectAll(Exchange& exchange) {
    const QString section = exchange.pair("section");
    const auto filter = checkSection(exchange, section);
    if (FormChecks::refuseIfProblems(exchange) ||
        !FormChecks::authorize(exchange, accounts_, exchange.pair("auth_token"))) {
        return;
    }
    const bool sorted = !exchange.pair("order_by").isNull();
    const QJsonArray rows = select(section, filter, sorted);
    exchange.answer = QJsonObject{{"root", QJsonObject{{section, rows}}}};
}

std::optional<CatalogueApi::Filter> CatalogueApi::checkSection(Exchange& exchange,
                                                               const QString& section) {
    const auto known = std::find_if(kSections.begin(), kSections.end(),
                                    [&](const auto& entry) { return entry.first == section; });
    if (known == kSections.end()) {
        FormChecks::expectPairs(exchange, kListKeys);
        exchange.problems << QStringLiteral("unknown section \"%1\"").arg(section);
        return std::nullopt;
    }
    const QString field = known->second;
    if (field.isEmpty()) {
        FormChecks::expectPairs(exchange, kListKeys);
        return std::nullopt;
    }
    FormChecks::expectPairs(exchange, kFilteredKeys);
    const QString orderBy = exchange.pair("order_by");
    if (!orderBy.isNull() && orderBy != QLatin1String("sort_order")) {
        exchange.problems << QStringLiteral("order_by is \"%1\", not \"sort_order\"").arg(orderBy);
    }
    static const QRegularExpression wherePattern(QStringLiteral("^(\\w+?)EQ(-?\\d+)$"));
    const QString where = exchange.pair("where");
    if (where.isNull()) {
        return std::nullopt;  // already noted as missing
    }
    const auto match = wherePattern.match(where);
    if (!match.hasMatch() || match.captured(1) != field) {
        exchange.problems << QStringLiteral("where is \"%1\", not %2EQ<id>").arg(where, field);
        return std::nullopt;
    }
    return Filter{field, match.captured(2).toLongLong()};
}

QJsonArray CatalogueApi::select(const QString& section, const std::optional<Filter>& filter,
                                bool sorted) const {
    QList<QJsonObject> rows;
    for (const QJsonValue& row : fixture_.rows(section)) {
        const QJsonObject object = row.toObject();
        if (!filter || numberOf(object.value(filter->field)) == filter->value) {
            rows.append(object);
        }
    }
    if (sorted) {
        std::stable_sort(rows.begin(), rows.end(), [](const QJsonObject& a, const QJsonObject& b) {
            return numberOf(a.value("sort_order")) < numberOf(b.value("sort_order"));
        });
    }
    QJsonArray result;
    for (const QJsonObject& row : rows) {
        result.append(row);
    }
    return result;
}

}  // namespace orvale_service
