#include "service/UploadRequest.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QSysInfo>

#include "BuildInfo.h"
#include "model/Credit.h"
#include "platform/Log.h"

namespace {

QByteArray transliterated(const QString& text) {
    QByteArray ascii;
    for (const QChar c : text.normalized(QString::NormalizationForm_KD)) {
        if (c.unicode() < 128) {
            ascii += static_cast<char>(c.unicode());
        }
    }
    return ascii;
}

void putTags(QVariantMap& fields, const QVariantMap& parameters) {
    const QVariant tags = parameters.value(QStringLiteral("tags"));
    if (tags.canConvert<QStringList>() && !tags.toStringList().isEmpty()) {
        fields.insert(QStringLiteral("tags"), tags.toStringList());
    }
}

}  // namespace

QVariantMap UploadRequest::projectFields(const QVariantMap& parameters, const QString& authToken) {
    QVariantMap fields;
    if (!authToken.isEmpty()) {
        fields.insert(QStringLiteral("auth_token"), authToken);
    }
    fields.insert(QStringLiteral("folder_id"),
                  parameters.value(QStringLiteral("folder"), 0).toInt());
    fields.insert(QStringLiteral("output_format"), QStringLiteral("json"));
    const QString description = parameters.value(QStringLiteral("description")).toString();
    if (!description.isEmpty()) {
        fields.insert(QStringLiteral("description"), description);
    }
    putTags(fields, parameters);
    return fields;
}

QVariantMap UploadRequest::mediaLibraryFields(const QVariantMap& parameters,
                                              const QString& authToken) {
    QVariantMap fields;
    fields.insert(QStringLiteral("auth_token"), authToken);
    bool validCategory = false;
    const int category = parameters.value(QStringLiteral("category")).toInt(&validCategory);
    if (validCategory) {
        fields.insert(QStringLiteral("media_type_id"), category);
    }
    fields.insert(QStringLiteral("output_format"), QStringLiteral("json"));
    for (const CreditPtr& credit :
         parameters.value(QStringLiteral("credits")).value<CreditList>()) {
        if (credit && !credit->stringValue.isEmpty()) {
            fields.insert(QStringLiteral("%1_%2").arg(QStringLiteral("credits")).arg(credit->ID),
                          credit->stringValue);
        }
    }
    putTags(fields, parameters);
    return fields;
}

QList<MultipartBody::FilePart> UploadRequest::fileParts(const File& file) {
    const VideoDetailPtr detail = file.videoDetail;
    const QString source = file.path();
    if (file.isVideo && detail && detail->preserveOriginal) {
        LOG_VERBOSE("Preserve original - media_file_alt: {} | media_file: {}",
                    detail->encodedVideoUrl, file.url());
        QList<MultipartBody::FilePart> parts{{QStringLiteral("media_file"), source}};
        // The original is what the user asked to keep; an encode that has gone since leaves it
        // to travel alone rather than failing the file.
        const QString encoded = detail->encodedVideoUrl.toLocalFile();
        if (!encoded.isEmpty() && QFileInfo::exists(encoded)) {
            parts.append({QStringLiteral("media_file_alt"), encoded});
        }
        return parts;
    }
    if (file.isVideo && detail && !detail->doNotEncode) {
        return {{QStringLiteral("media_file"), detail->encodedVideoUrl.toLocalFile()}};
    }
    return {{QStringLiteral("media_file"), source}};
}

QString UploadRequest::unreadablePart(const QList<MultipartBody::FilePart>& parts) {
    for (const MultipartBody::FilePart& part : parts) {
        QFile content(part.path);
        if (!part.path.isEmpty() && !content.open(QIODevice::ReadOnly)) {
            return QStringLiteral("Cannot read %1: %2").arg(part.path, content.errorString());
        }
    }
    return {};
}

HttpRequest UploadRequest::make(const QUrl& url, const QVariantMap& fields,
                                const QList<MultipartBody::FilePart>& parts) {
    auto body = std::make_shared<MultipartBody>(MultipartBody::makeBoundary(),
                                                FormFields::flatten(fields), parts);
    HttpRequest request("POST", url);
    request.setHeader("Content-Type", body->contentType());
    request.setHeader("Accept-Language", acceptLanguage(QLocale::system().uiLanguages()));
    request.setHeader("User-Agent", userAgent());
    request.setBody(std::shared_ptr<BodySource>(body));
    return request;
}

QByteArray UploadRequest::acceptLanguage(const QStringList& languages) {
    static const QRegularExpression languageTag(
        QStringLiteral("^[A-Za-z]{2,8}(-[A-Za-z0-9]{1,8})*$"));
    QStringList tags;
    for (const QString& language : languages) {
        const QString tag = QString(language).replace(QLatin1Char('_'), QLatin1Char('-'));
        const bool isLocaleName = tag.compare(QStringLiteral("POSIX"), Qt::CaseInsensitive) == 0;
        if (languageTag.match(tag).hasMatch() && !isLocaleName && !tags.contains(tag)) {
            tags << tag;
        }
    }
    if (tags.isEmpty()) {
        tags << QStringLiteral("en");
    }
    QStringList parts;
    for (qsizetype i = 0; i < std::min<qsizetype>(tags.size(), 6); ++i) {
        parts << QString::asprintf("%s;q=%0.1g", tags.at(i).toUtf8().constData(),
                                   1.0 - 0.1 * static_cast<double>(i));
    }
    return parts.join(QStringLiteral(", ")).toUtf8();
}

QByteArray UploadRequest::userAgent() {
    return transliterated(QStringLiteral("%1/%2 (Linux %3)")
                              .arg(QLatin1String(BuildInfo::applicationName),
                                   QLatin1String(BuildInfo::version), QSysInfo::kernelVersion()));
}
