#include "service/JsonRequest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>

#include "service/PlainRequest.h"

const QStringList& JsonRequest::acceptableContentTypes() {
    static const QStringList types{QStringLiteral("application/json"), QStringLiteral("text/json"),
                                   QStringLiteral("text/javascript")};
    return types;
}

HttpTransport::Callbacks JsonRequest::callbacks(Success success, Failure failure) {
    HttpTransport::Callbacks callbacks;
    callbacks.finished = [success = std::move(success),
                          failure = std::move(failure)](const HttpResponse& response) {
        const Outcome outcome = evaluate(response);
        if (outcome.accepted) {
            if (success) {
                success(outcome.value);
            }
        } else if (failure) {
            failure(outcome.error);
        }
    };
    return callbacks;
}

HttpRequestId JsonRequest::start(HttpTransport& transport, HttpRequest request, Success success,
                                 Failure failure) {
    return transport.send(std::move(request), callbacks(std::move(success), std::move(failure)));
}

JsonRequest::Outcome JsonRequest::evaluate(const HttpResponse& response) {
    if (const auto reason = PlainRequest::rejection(response)) {
        return {.accepted = false, .value = {}, .error = *reason};
    }
    const QString type = response.contentType();
    if (!acceptableContentTypes().contains(type)) {
        const QString received = type.isEmpty() ? QStringLiteral("(none)") : type;
        const QString expected = QLatin1Char('(') +
                                 acceptableContentTypes().join(QStringLiteral(", ")) +
                                 QLatin1Char(')');
        return {
            .accepted = false,
            .value = {},
            .error = QStringLiteral("Expected content type %1, got %2").arg(expected, received)};
    }
    return parse(response.body);
}

JsonRequest::Outcome JsonRequest::parse(const QByteArray& body) {
    if (body.isEmpty() || body == " ") {
        return {.accepted = true, .value = QJsonValue(QJsonValue::Undefined), .error = {}};
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(body, &error);
    if (error.error != QJsonParseError::NoError) {
        return {.accepted = false, .value = {}, .error = error.errorString()};
    }
    const QJsonValue value =
        document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
    return {.accepted = true, .value = value, .error = {}};
}
