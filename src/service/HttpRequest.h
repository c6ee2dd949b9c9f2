#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QUrl>
#include <memory>
#include <variant>

#include "service/BodySource.h"

// Names one request sent through the transport; 0 names none.
using HttpRequestId = quint64;

// One HTTP request as the transport sends it: method, address, headers and an optional body,
// given either as bytes or as a source that is streamed. A copy shares the body source, and a
// source is read once, so a request with a source is meant to be sent once.
class HttpRequest {
public:
    using Header = QPair<QByteArray, QByteArray>;
    using FormPairs = QList<QPair<QString, QString>>;

    static inline const QByteArray kFormContentType = "application/x-www-form-urlencoded";

    HttpRequest() = default;
    HttpRequest(QByteArray method, QUrl url);

    static HttpRequest get(const QUrl& url);
    // A POST whose body is formText(pairs), labelled as form data.
    static HttpRequest formPost(const QUrl& url, const FormPairs& pairs);
    // "key=value" pairs joined by "&" in the given order. Deliberately not percent-encoded:
    // the service reads keys and values byte for byte, so "&" or "=" inside a value are sent
    // as they are.
    static QByteArray formText(const FormPairs& pairs);

    const QByteArray& method() const { return method_; }
    const QUrl& url() const { return url_; }
    const QList<Header>& headers() const { return headers_; }

    // Replaces any header of the same name (names compare case-insensitively). Content-Length
    // is never taken from here; it always follows from the body.
    void setHeader(const QByteArray& name, const QByteArray& value);
    QByteArray header(const QByteArray& name) const;
    bool hasHeader(const QByteArray& name) const;

    void setBody(QByteArray bytes);
    void setBody(std::shared_ptr<BodySource> source);
    bool hasBody() const { return !std::holds_alternative<std::monostate>(body_); }
    const QByteArray* bodyBytes() const { return std::get_if<QByteArray>(&body_); }
    std::shared_ptr<BodySource> bodySource() const;

private:
    QByteArray method_ = "GET";
    QUrl url_;
    QList<Header> headers_;
    std::variant<std::monostate, QByteArray, std::shared_ptr<BodySource>> body_;
};
