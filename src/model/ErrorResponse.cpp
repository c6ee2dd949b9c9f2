#include "model/ErrorResponse.h"

ErrorResponsePtr ErrorResponse::fromMessage(const QString& message) {
    return std::make_shared<ErrorResponse>(message);
}

QString ErrorResponse::messageOr(const Ptr& error, const QString& fallback) {
    return error && !error->message.isEmpty() ? error->message : fallback;
}
