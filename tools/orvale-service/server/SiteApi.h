#pragma once

#include <QJsonValue>

#include "server/Endpoint.h"

namespace orvale_service {

class Fixture;

// The maker's web site: the version document, the promotional answer, the two pages the app
// opens in the browser and any files the fixture lists (the promotional image). Texts in the
// fixture may say "{base}" for this server's own address.
class SiteApi {
public:
    explicit SiteApi(const Fixture& fixture);

    // Known only once the port is bound; set before the server starts answering.
    void setBaseUrl(const QString& baseUrl) { baseUrl_ = baseUrl; }
    Endpoints endpoints();
    void version(Exchange& exchange) const;
    void ad(Exchange& exchange) const;

private:
    Endpoint page(const QString& name, const QString& path, const QString& title) const;
    Endpoint file(const QString& path, const QString& source) const;
    QJsonValue withBase(const QJsonValue& value) const;

    const Fixture& fixture_;
    QString baseUrl_;
};

}  // namespace orvale_service
