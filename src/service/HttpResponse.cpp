#include "service/HttpResponse.h"

QByteArray HttpResponse::header(const QByteArray& name) const {
    for (const auto& [headerName, value] : headers) {
        if (headerName.compare(name, Qt::CaseInsensitive) == 0) {
            return value;
        }
    }
    return {};
}

QString HttpResponse::contentType() const {
    const QByteArray value = header("Content-Type");
    const qsizetype semicolon = value.indexOf(';');
    const QByteArray mediaType = semicolon < 0 ? value : value.left(semicolon);
    return QString::fromLatin1(mediaType.trimmed()).toLower();
}
