#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>

// What came back for one request: either an HTTP answer (any status) or a transport failure,
// told apart by errorText. Headers are those of the final answer after redirects.
struct HttpResponse {
    using Header = QPair<QByteArray, QByteArray>;

    int status = 0;  // 0 when no answer arrived
    QList<Header> headers;
    QByteArray body;
    // Why no answer arrived, in libcurl's words (or the body source's); empty when one did.
    QString errorText;

    bool isTransportFailure() const { return !errorText.isEmpty(); }
    // First header of that name, compared case-insensitively; empty when there is none.
    QByteArray header(const QByteArray& name) const;
    // The media type of Content-Type without parameters, lower-cased ("application/json").
    QString contentType() const;
};
