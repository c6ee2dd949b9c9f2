#include "service/PlainRequest.h"

HttpTransport::Callbacks PlainRequest::callbacks(Success success, Failure failure,
                                                 Progress progress) {
    HttpTransport::Callbacks callbacks;
    callbacks.uploadProgress = std::move(progress);
    callbacks.finished = [success = std::move(success),
                          failure = std::move(failure)](const HttpResponse& response) {
        if (const auto reason = rejection(response)) {
            if (failure) {
                failure(*reason);
            }
        } else if (success) {
            success(response);
        }
    };
    return callbacks;
}

HttpRequestId PlainRequest::start(HttpTransport& transport, HttpRequest request, Success success,
                                  Failure failure) {
    return transport.send(std::move(request), callbacks(std::move(success), std::move(failure)));
}

std::optional<QString> PlainRequest::rejection(const HttpResponse& response) {
    if (response.isTransportFailure()) {
        return response.errorText;
    }
    if (response.status < kFirstAcceptedStatus || response.status > kLastAcceptedStatus) {
        return QStringLiteral("Expected status code in (%1-%2), got %3")
            .arg(kFirstAcceptedStatus)
            .arg(kLastAcceptedStatus)
            .arg(response.status);
    }
    return std::nullopt;
}
