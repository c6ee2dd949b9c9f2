#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <optional>

#include "server/NamedValue.h"
#include "server/UploadSummary.h"

namespace orvale_service {

// One request as the service saw it and what it answered. Endpoints read the request half and
// fill the answer half; the whole becomes one line of the request record.
struct Exchange {
    // Request
    qint64 id = 0;
    QString time;
    QString endpoint;  // "get_token", "select_all", ..., "unknown"
    QString method;
    QString path;
    QString prefix;  // the part of the path in front of the endpoint's own path
    QJsonObject headers;
    QString contentType;
    std::optional<qint64> declaredLength;
    qint64 receivedLength = 0;
    bool bodyComplete = true;  // false when the body ended before its Content-Length
    QByteArray formBody;
    NamedValues pairs;
    std::optional<UploadSummary> upload;

    // Verdict and answer
    QStringList problems;
    QStringList faults;
    bool dropped = false;
    int status = 200;
    QJsonValue answer;  // a JSON answer, as sent
    QByteArray body;    // a non-JSON answer (pages, images); also the final bytes sent
    QByteArray answerType = "application/json";

    // 2 when the address carries the second API generation's "/v2".
    int generation() const { return prefix.endsWith(QLatin1String("/v2")) ? 2 : 1; }
    QString pair(const QString& name) const;
    // Sets a JSON refusal in the service's own shape: {"root": {"status": "error", ...}}.
    void refuse(int httpStatus, const QString& message);
    QJsonObject toRecord() const;
};

}  // namespace orvale_service
