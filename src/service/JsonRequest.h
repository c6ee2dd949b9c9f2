#pragma once

#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <functional>

#include "service/HttpTransport.h"

// A request whose answer must be JSON: status 200-299 and a JSON content type, and a body that
// parses. An empty body, or a lone space, is accepted as no value (an undefined QJsonValue).
class JsonRequest {
public:
    using Success = std::function<void(const QJsonValue& value)>;
    using Failure = std::function<void(const QString& description)>;

    struct Outcome {
        bool accepted = false;
        QJsonValue value;
        QString error;
    };

    static const QStringList& acceptableContentTypes();

    // Callbacks for HttpTransport::send or HttpBatchQueue::enqueue.
    static HttpTransport::Callbacks callbacks(Success success, Failure failure);
    static HttpRequestId start(HttpTransport& transport, HttpRequest request, Success success,
                               Failure failure);

    static Outcome evaluate(const HttpResponse& response);

private:
    static Outcome parse(const QByteArray& body);
};
