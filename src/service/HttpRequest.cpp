#include "service/HttpRequest.h"

#include <algorithm>

HttpRequest::HttpRequest(QByteArray method, QUrl url)
    : method_(std::move(method)), url_(std::move(url)) {}

HttpRequest HttpRequest::get(const QUrl& url) { return HttpRequest("GET", url); }

HttpRequest HttpRequest::formPost(const QUrl& url, const FormPairs& pairs) {
    HttpRequest request("POST", url);
    request.setHeader("Content-Type", kFormContentType);
    request.setBody(formText(pairs));
    return request;
}

QByteArray HttpRequest::formText(const FormPairs& pairs) {
    QByteArray text;
    for (const auto& [key, value] : pairs) {
        if (!text.isEmpty()) {
            text += '&';
        }
        text += key.toUtf8() + '=' + value.toUtf8();
    }
    return text;
}

void HttpRequest::setHeader(const QByteArray& name, const QByteArray& value) {
    const auto sameName = [&name](const Header& h) {
        return h.first.compare(name, Qt::CaseInsensitive) == 0;
    };
    headers_.removeIf(sameName);
    headers_.append({name, value});
}

QByteArray HttpRequest::header(const QByteArray& name) const {
    for (const auto& [headerName, value] : headers_) {
        if (headerName.compare(name, Qt::CaseInsensitive) == 0) {
            return value;
        }
    }
    return {};
}

bool HttpRequest::hasHeader(const QByteArray& name) const {
    return std::any_of(headers_.begin(), headers_.end(), [&name](const Header& h) {
        return h.first.compare(name, Qt::CaseInsensitive) == 0;
    });
}

void HttpRequest::setBody(QByteArray bytes) { body_ = std::move(bytes); }

void HttpRequest::setBody(std::shared_ptr<BodySource> source) {
    if (source) {
        body_ = std::move(source);
    } else {
        body_ = std::monostate{};
    }
}

std::shared_ptr<BodySource> HttpRequest::bodySource() const {
    const auto* source = std::get_if<std::shared_ptr<BodySource>>(&body_);
    return source != nullptr ? *source : nullptr;
}
