#pragma once

#include <QStringList>
#include <QUrl>
#include <QVariantMap>

#include "model/File.h"
#include "service/HttpRequest.h"
#include "service/MultipartBody.h"

// One file's upload: the form fields of its destination, its file parts and the request that
// streams them as a multipart body.
class UploadRequest {
public:
    static QVariantMap projectFields(const QVariantMap& parameters, const QString& authToken);
    static QVariantMap mediaLibraryFields(const QVariantMap& parameters, const QString& authToken);

    // "media_file" (and "media_file_alt" when the original travels too).
    static QList<MultipartBody::FilePart> fileParts(const File& file);

    static HttpRequest make(const QUrl& url, const QVariantMap& fields, const File& file);

    // "en-US;q=1, en;q=0.9", at most six languages.
    static QByteArray acceptLanguage(const QStringList& languages);
    // "Orvale/1.0 (Linux 6.1.0)", in plain ASCII.
    static QByteArray userAgent();
};
