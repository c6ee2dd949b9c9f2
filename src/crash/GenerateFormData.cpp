#include "crash/GenerateFormData.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include "platform/Log.h"

namespace {

const QByteArray kCrlf = QByteArrayLiteral("\r\n");

QByteArray dispositionOf(const QString& name) {
    return "Content-Disposition: form-data; name=\"" + name.toUtf8() + "\"";
}

std::optional<QByteArray> textOf(const QVariant& value) {
    switch (value.typeId()) {
        case QMetaType::QString:
        case QMetaType::QByteArray:
            return value.toString().toUtf8();
        case QMetaType::Bool:
            return QByteArray(value.toBool() ? "1" : "0");
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::Long:
        case QMetaType::ULong:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
        case QMetaType::Double:
            return value.toString().toUtf8();
        default:
            return std::nullopt;
    }
}

QByteArray filePart(const QString& name, const QString& path) {
    QFile file(path);
    QByteArray bytes;
    if (file.open(QIODevice::ReadOnly)) {
        bytes = file.readAll();
    } else {
        // Still sent, empty: the report's other fields say which start it came from.
        LOG_WARNING("PellCrashReporterError: cannot read {}: {}", path, file.errorString());
    }
    return dispositionOf(name) + "; filename=\"" + QFileInfo(path).fileName().toUtf8() + "\"" +
           kCrlf + "Content-Type: application/octet-stream" + kCrlf + kCrlf + bytes;
}

std::optional<QByteArray> partOf(const QString& name, const QVariant& value) {
    if (value.typeId() == QMetaType::QUrl && value.toUrl().isLocalFile()) {
        return filePart(name, value.toUrl().toLocalFile());
    }
    const std::optional<QByteArray> text = textOf(value);
    if (!text) {
        return std::nullopt;
    }
    return dispositionOf(name) + kCrlf + "Content-Type: text/plain; charset=utf-8" + kCrlf + kCrlf +
           *text;
}

}  // namespace

QByteArray GenerateFormData(const CrashFormFields& fields, const QByteArray& boundary) {
    Q_ASSERT(!boundary.isEmpty());
    QByteArray body;
    for (const auto& [name, value] : fields) {
        const std::optional<QByteArray> part = partOf(name, value);
        if (!part) {
            // Left out whole: a boundary line without headers would spoil the entire body.
            LOG_WARNING(
                "PellCrashReporterError: formValues contained illegal object {} of class {}",
                value.toString(), QString::fromLatin1(value.typeName()));
            continue;
        }
        body += "--" + boundary + kCrlf + *part + kCrlf;
    }
    body += "--" + boundary + "--" + kCrlf;
    return body;
}
