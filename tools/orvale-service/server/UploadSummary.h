#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>

#include "server/NamedValue.h"

namespace orvale_service {

// One part of a multipart body as it arrived: a text field, or a file stored on disk.
struct UploadPart {
    QString name = {};
    bool isFile = false;
    QString value = {};        // text parts
    QString fileName = {};     // file parts: the filename parameter as sent
    QString contentType = {};  // the part's Content-Type header, empty when it had none
    qint64 size = 0;
    QString storedPath = {};  // file parts
    bool complete = false;
};

// What a multipart request carried and whether its framing and Content-Length were exact.
struct UploadSummary {
    QString boundary;
    bool framingOk = false;
    QString framingError;
    bool lengthOk = false;
    QString lengthError;
    QList<UploadPart> parts;  // in the order received

    NamedValues fields() const;
    QList<UploadPart> files() const;
    QJsonObject toJson() const;
};

}  // namespace orvale_service
