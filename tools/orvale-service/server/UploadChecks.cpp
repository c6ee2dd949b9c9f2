#include "server/UploadChecks.h"

#include <QRegularExpression>

#include "server/UploadSummary.h"

namespace orvale_service {

QStringList UploadChecks::partOrder(const UploadSummary& upload) {
    QStringList problems;
    bool fileSeen = false;
    QString previousKey;
    for (const UploadPart& part : upload.parts) {
        if (part.isFile) {
            fileSeen = true;
            continue;
        }
        if (fileSeen) {
            problems << QStringLiteral("text field \"%1\" comes after a file part").arg(part.name);
        }
        // Arrays travel as "key[]" fields, but the order is that of the keys themselves.
        const QString key = part.name.section(QLatin1Char('['), 0, 0);
        const int order = QString::compare(previousKey, key, Qt::CaseInsensitive);
        if (!previousKey.isNull() && order > 0) {
            problems << QStringLiteral("field \"%1\" is out of order").arg(part.name);
        } else if (order == 0 && !part.name.endsWith(QLatin1String("[]"))) {
            problems << QStringLiteral("field \"%1\" is sent more than once").arg(part.name);
        }
        previousKey = key;
    }
    return problems;
}

QStringList UploadChecks::fileParts(const UploadSummary& upload) {
    QStringList problems;
    QStringList names;
    for (const UploadPart& file : upload.files()) {
        names << file.name;
        if (file.name != QLatin1String("media_file") &&
            file.name != QLatin1String("media_file_alt")) {
            problems << QStringLiteral("unexpected file part \"%1\"").arg(file.name);
        }
        if (file.fileName.isEmpty()) {
            problems << QStringLiteral("file part \"%1\" has no file name").arg(file.name);
        }
        if (file.contentType.isEmpty()) {
            problems << QStringLiteral("file part \"%1\" has no Content-Type").arg(file.name);
        }
    }
    const qsizetype mediaFiles = names.count(QStringLiteral("media_file"));
    const qsizetype alternates = names.count(QStringLiteral("media_file_alt"));
    if (mediaFiles != 1) {
        problems << QStringLiteral("%1 media_file parts instead of one").arg(mediaFiles);
    }
    if (alternates > 1 || (alternates == 1 && names.indexOf(QStringLiteral("media_file_alt")) <
                                                  names.indexOf(QStringLiteral("media_file")))) {
        problems << QStringLiteral("media_file_alt must come once, after media_file");
    }
    return problems;
}

QStringList UploadChecks::unexpectedFields(const UploadSummary& upload, const QStringList& allowed,
                                           const QString& pattern) {
    const QRegularExpression extra(QRegularExpression::anchoredPattern(pattern));
    QStringList problems;
    for (const NamedValue& field : upload.fields()) {
        if (!allowed.contains(field.name) &&
            (pattern.isEmpty() || !extra.match(field.name).hasMatch())) {
            problems << QStringLiteral("unexpected field \"%1\"").arg(field.name);
        }
    }
    return problems;
}

QStringList UploadChecks::integerField(const UploadSummary& upload, const QString& name,
                                       bool required, qint64* value) {
    qsizetype count = 0;
    bool isInteger = true;
    for (const NamedValue& field : upload.fields()) {
        if (field.name == name) {
            ++count;
            *value = field.value.toLongLong(&isInteger);
        }
    }
    if (count == 0) {
        return required ? QStringList{QStringLiteral("missing field \"%1\"").arg(name)}
                        : QStringList();
    }
    if (!isInteger) {
        return {QStringLiteral("field \"%1\" is not an integer").arg(name)};
    }
    return {};
}

}  // namespace orvale_service
