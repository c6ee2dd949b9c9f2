#pragma once

#include <QJsonArray>
#include <optional>

#include "server/Endpoint.h"

namespace orvale_service {

class Accounts;
class Fixture;

// "select_all/": every catalogue read, told apart by its "section" pair. Rows come from the
// fixture's section of the same name, filtered by "where" and sorted by "order_by".
class CatalogueApi {
public:
    CatalogueApi(const Fixture& fixture, const Accounts& accounts);

    Endpoints endpoints();
    void selectAll(Exchange& exchange);

private:
    struct Filter {
        QString field;
        qint64 value = 0;
    };

    std::optional<Filter> checkSection(Exchange& exchange, const QString& section);
    QJsonArray select(const QString& section, const std::optional<Filter>& filter,
                      bool sorted) const;

    const Fixture& fixture_;
    const Accounts& accounts_;
};

}  // namespace orvale_service
