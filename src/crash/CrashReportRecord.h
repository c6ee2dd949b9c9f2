#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <optional>

// What the crash handler recorded about the crash of an earlier run: when it happened, the
// uncaught exception if one led to it, and the signal that ended the process. The on-disk
// layout is described in crash/CrashRecordLayout.h.
struct CrashReportRecord {
    struct SystemInfo {
        QDateTime timestamp;  // UTC, whole seconds
        bool operator==(const SystemInfo&) const = default;
    };

    struct ExceptionInfo {
        QString exceptionName;    // the exception's type, demangled ("std::runtime_error")
        QString exceptionReason;  // its what(), empty for types without one
        bool operator==(const ExceptionInfo&) const = default;
    };

    struct SignalInfo {
        QString name;         // "SIGSEGV"
        QString code;         // "SEGV_MAPERR", or "#" and the number when it has no name
        quint64 address = 0;  // the fault address; 0 for signals sent by a process
        bool operator==(const SignalInfo&) const = default;
    };

    SystemInfo systemInfo;
    std::optional<ExceptionInfo> exceptionInfo;  // absent when the crash was no exception
    SignalInfo signalInfo;

    bool operator==(const CrashReportRecord&) const = default;

    // The record in data read from the pending record's file; std::nullopt, with the reason in
    // error when given, when the data is not such a record or lacks one of its values.
    static std::optional<CrashReportRecord> fromData(const QByteArray& data,
                                                     QString* error = nullptr);

    // The same bytes the crash handler would write for this record.
    QByteArray toData() const;
};
