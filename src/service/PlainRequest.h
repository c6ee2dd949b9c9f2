#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "service/HttpTransport.h"

// A request whose answer is accepted with any content type when its status is 200-299; every
// other outcome is a failure with a readable description. Uploads go out this way.
class PlainRequest {
public:
    using Success = std::function<void(const HttpResponse& response)>;
    using Failure = std::function<void(const QString& description)>;
    using Progress = std::function<void(qint64 bytesSent)>;

    static constexpr int kFirstAcceptedStatus = 200;
    static constexpr int kLastAcceptedStatus = 299;

    // Callbacks for HttpTransport::send or HttpBatchQueue::enqueue.
    static HttpTransport::Callbacks callbacks(Success success, Failure failure,
                                              Progress progress = {});
    static HttpRequestId start(HttpTransport& transport, HttpRequest request, Success success,
                               Failure failure);

    // Why the answer is not accepted: the transport's failure or the status; none when it is.
    static std::optional<QString> rejection(const HttpResponse& response);
};
