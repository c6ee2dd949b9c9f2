#include "crash/CrashReportRecord.h"

#include <QHash>
#include <QList>

#include "crash/CrashRecordLayout.h"

namespace {

QString unescaped(const QByteArray& value) {
    QByteArray text;
    text.reserve(value.size());
    for (qsizetype i = 0; i < value.size(); ++i) {
        const char c = value.at(i);
        if (c != '\\' || i + 1 == value.size()) {
            text.append(c);
            continue;
        }
        const char next = value.at(++i);
        text.append(next == 'n' ? '\n' : next == 'r' ? '\r' : next);
    }
    return QString::fromUtf8(text);
}

// The "key: value" lines after the first; a later line of the same key wins.
QHash<QByteArray, QByteArray> valuesByKey(const QList<QByteArray>& lines) {
    QHash<QByteArray, QByteArray> values;
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const qsizetype colon = lines[i].indexOf(": ");
        if (colon > 0) {
            values.insert(lines[i].left(colon), lines[i].mid(colon + 2));
        }
    }
    return values;
}

bool fail(QString* error, const QString& reason) {
    if (error != nullptr) {
        *error = reason;
    }
    return false;
}

bool readTimestamp(const QByteArray& text, QDateTime* timestamp, QString* error) {
    bool ok = false;
    const qint64 seconds = text.toLongLong(&ok);
    if (!ok) {
        return fail(error,
                    QStringLiteral("timestamp is not a number: %1").arg(QString::fromUtf8(text)));
    }
    *timestamp = QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
    return true;
}

bool readAddress(const QByteArray& text, quint64* address, QString* error) {
    bool ok = false;
    *address = text.startsWith("0x") ? text.mid(2).toULongLong(&ok, 16) : 0;
    if (!ok) {
        return fail(
            error,
            QStringLiteral("signal address is not hexadecimal: %1").arg(QString::fromUtf8(text)));
    }
    return true;
}

}  // namespace

std::optional<CrashReportRecord> CrashReportRecord::fromData(const QByteArray& data,
                                                             QString* error) {
    const QList<QByteArray> lines = data.split('\n');
    if (lines.first() != CrashRecordLayout::kFirstLine) {
        fail(error, QStringLiteral("not a crash record"));
        return std::nullopt;
    }
    const QHash<QByteArray, QByteArray> values = valuesByKey(lines);
    for (const char* key : {CrashRecordLayout::kTimestamp, CrashRecordLayout::kSignalName,
                            CrashRecordLayout::kSignalCode, CrashRecordLayout::kSignalAddress}) {
        if (!values.contains(key)) {
            fail(error, QStringLiteral("crash record lacks %1").arg(QLatin1String(key)));
            return std::nullopt;
        }
    }

    CrashReportRecord record;
    if (!readTimestamp(values.value(CrashRecordLayout::kTimestamp), &record.systemInfo.timestamp,
                       error) ||
        !readAddress(values.value(CrashRecordLayout::kSignalAddress), &record.signalInfo.address,
                     error)) {
        return std::nullopt;
    }
    record.signalInfo.name = unescaped(values.value(CrashRecordLayout::kSignalName));
    record.signalInfo.code = unescaped(values.value(CrashRecordLayout::kSignalCode));
    if (values.contains(CrashRecordLayout::kExceptionName)) {
        record.exceptionInfo =
            ExceptionInfo{unescaped(values.value(CrashRecordLayout::kExceptionName)),
                          unescaped(values.value(CrashRecordLayout::kExceptionReason))};
    }
    return record;
}

QByteArray CrashReportRecord::toData() const {
    const QByteArray exceptionName =
        exceptionInfo ? exceptionInfo->exceptionName.toUtf8() : QByteArray();
    const QByteArray exceptionReason =
        exceptionInfo ? exceptionInfo->exceptionReason.toUtf8() : QByteArray();
    const QByteArray signalName = signalInfo.name.toUtf8();
    const QByteArray signalCode = signalInfo.code.toUtf8();

    CrashRecordLayout::RawRecord raw;
    raw.timestamp = systemInfo.timestamp.toSecsSinceEpoch();
    raw.exceptionName = exceptionInfo ? exceptionName.constData() : nullptr;
    raw.exceptionReason = exceptionReason.constData();
    raw.signalName = signalName.constData();
    raw.signalCode = signalCode.constData();
    raw.signalAddress = signalInfo.address;

    SignalSafeBuffer buffer;
    CrashRecordLayout::append(buffer, raw);
    return QByteArray(buffer.data(), static_cast<qsizetype>(buffer.size()));
}
