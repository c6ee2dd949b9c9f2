#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

namespace orvale_service {

struct Exchange;

enum class BodyKind { None, Form, Multipart };

// One resource of the service: where it lives, what body it takes and how it answers. The path
// is matched at the end of the request path; whatever comes before it is the address prefix.
struct Endpoint {
    QString name = {};
    QString method = {};
    QString path = {};
    BodyKind body = BodyKind::None;
    QStringList knownKeys = {};     // form bodies: keys that begin a new pair
    QStringList freeTextKeys = {};  // form bodies: values that may hold "&" themselves
    std::function<void(Exchange&)> answer = {};
    // Set for endpoints whose faults can aim at one kind of request (select_all's sections).
    std::function<QString(const Exchange&)> section = {};
};

using Endpoints = QList<Endpoint>;

}  // namespace orvale_service
