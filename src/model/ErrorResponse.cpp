#include "model/ErrorResponse.h"

ErrorResponsePtr ErrorResponse::fromMessage(const QString& message) {
    return std::make_shared<ErrorResponse>(message);
}
