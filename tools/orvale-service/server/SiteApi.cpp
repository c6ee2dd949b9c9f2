#include "server/SiteApi.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

#include "server/Exchange.h"
#include "server/Fixture.h"
#include "server/FormChecks.h"

namespace orvale_service {
namespace {

QByteArray mimeType(const QString& path) {
    static const QList<QPair<QString, QByteArray>> types{
        {".png", "image/png"}, {".jpg", "image/jpeg"},        {".jpeg", "image/jpeg"},
        {".gif", "image/gif"}, {".json", "application/json"}, {".html", "text/html"},
    };
    for (const auto& [suffix, type] : types) {
        if (path.endsWith(suffix, Qt::CaseInsensitive)) {
            return type;
        }
    }
    return "application/octet-stream";
}

}  // namespace

SiteApi::SiteApi(const Fixture& fixture) : fixture_(fixture) {}

Endpoints SiteApi::endpoints() {
    Endpoints list{
        {.name = "version",
         .method = "GET",
         .path = "/downloads/kesto/version.json",
         .answer = [this](Exchange& exchange) { version(exchange); }},
        {.name = "ad",
         .method = "POST",
         .path = "/ads/ad.php",
         .body = BodyKind::Form,
         .knownKeys = {"uid"},
         .answer = [this](Exchange& exchange) { ad(exchange); }},
        page("help", "/encoding-center/kesto", "Encoding help centre"),
        page("demo", "/demo", "Demo"),
    };
    const QJsonObject files = fixture_.site().value("files").toObject();
    for (auto it = files.begin(); it != files.end(); ++it) {
        list << file(it.key(), fixture_.resolve(it.value().toString()));
    }
    return list;
}

void SiteApi::version(Exchange& exchange) const {
    QJsonObject document;
    const QJsonValue version = fixture_.site().value("version");
    if (!version.isUndefined()) {
        document.insert("version", version);
    }
    exchange.answer = document;
}

void SiteApi::ad(Exchange& exchange) const {
    // The app may leave "uid" out when it has none to send.
    FormChecks::expectPairs(exchange, {}, {"uid"});
    if (!FormChecks::refuseIfProblems(exchange)) {
        exchange.answer = withBase(fixture_.site().value("ad").toObject());
    }
}

Endpoint SiteApi::page(const QString& name, const QString& path, const QString& title) const {
    return {.name = name, .method = "GET", .path = path, .answer = [title](Exchange& exchange) {
                exchange.answerType = "text/html; charset=utf-8";
                exchange.body = QStringLiteral(
                                    "<!doctype html><title>%1</title><h1>%1</h1>"
                                    "<p>Served by orvale-service.</p>\n")
                                    .arg(title)
                                    .toUtf8();
            }};
}

Endpoint SiteApi::file(const QString& path, const QString& source) const {
    return {
        .name = "site_file", .method = "GET", .path = path, .answer = [source](Exchange& exchange) {
            QFile file(source);
            if (!file.open(QIODevice::ReadOnly)) {
                exchange.problems << QStringLiteral("cannot read %1").arg(source);
                exchange.refuse(404, QStringLiteral("No such file."));
                return;
            }
            exchange.answerType = mimeType(source);
            exchange.body = file.readAll();
        }};
}

QJsonValue SiteApi::withBase(const QJsonValue& value) const {
    if (value.isString()) {
        return value.toString().replace(QLatin1String("{base}"), baseUrl_);
    }
    if (value.isObject()) {
        QJsonObject object = value.toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            it.value() = withBase(it.value());
        }
        return object;
    }
    return value;
}

}  // namespace orvale_service
