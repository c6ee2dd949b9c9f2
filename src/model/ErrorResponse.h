#pragma once

#include <QMetaType>
#include <QString>
#include <memory>
#include <utility>

// A failure on its way to the screens, which show its message in an alert. Failures are values:
// nothing in the service layer throws or retries.
struct ErrorResponse {
    using Ptr = std::shared_ptr<ErrorResponse>;

    ErrorResponse() = default;
    explicit ErrorResponse(QString text) : message(std::move(text)) {}
    ErrorResponse(const ErrorResponse&) = delete;
    ErrorResponse& operator=(const ErrorResponse&) = delete;

    // From a transport error's readable description or the service's own "message".
    static Ptr fromMessage(const QString& message);
    // What a screen shows for a failure that may have come without words.
    static QString messageOr(const Ptr& error, const QString& fallback);

    QString message;
    // Set only by the login path, when the login request itself failed.
    bool isServerError = false;
};

using ErrorResponsePtr = ErrorResponse::Ptr;

Q_DECLARE_METATYPE(ErrorResponsePtr)
