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
    // "Cannot read PATH: REASON" for the first part whose file cannot be opened; empty when all
    // can. A part without a path is left out of the body, as it always was.
    static QString unreadablePart(const QList<MultipartBody::FilePart>& parts);

    static HttpRequest make(const QUrl& url, const QVariantMap& fields,
                            const QList<MultipartBody::FilePart>& parts);

    // "en-US;q=1, en;q=0.9", at most six languages. Names that are no language tag ("C",
    // "POSIX") are left out; with none left it is "en;q=1".
    static QByteArray acceptLanguage(const QStringList& languages);
    // "Orvale/1.0 (Linux 6.1.0)", in plain ASCII.
    static QByteArray userAgent();
};
