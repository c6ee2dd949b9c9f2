#pragma once

#include <QDateTime>
#include <QSettings>
#include <QString>
#include <optional>

#include "platform/ConfiguredHost.h"

// Where crash reports go and what they carry, read from the settings store each time they are
// asked for, so that a value changed by hand takes effect at the next start.
//
// The crash-report server's host is configuration like the maker's site: $ORVALE_CRASH_SERVER,
// then "CrashReportServerHost", then this build's default (none unless the build was told one).
// It receives the in-process summaries and, unless "PellCrashReporterCrashSubmissionURL" names
// another address, the crash logs too. Where no address results, nothing is sent.
class CrashReportSettings {
public:
    static inline const QString kSubmissionURLKey =
        QStringLiteral("PellCrashReporterCrashSubmissionURL");
    static inline const QString kLastCrashReportDateKey =
        QStringLiteral("PellCrashReporterLastCrashReportDate");
    static inline const QString kIncludeSystemInformationKey =
        QStringLiteral("PellCrashReporterIncludeAnonymousSystemInformation");
    static inline const QString kPreferredReportingLocaleKey =
        QStringLiteral("PellCrashReporterPreferredReportingLocale");
    static inline const QString kDefaultReportingLocale = QStringLiteral("en_US");

    static inline const QString kCrashLogPath = QStringLiteral("/crashlogs/submit");
    static inline const QString kReportAddPath = QStringLiteral("/tarn/cr/api/report/add");

    static const ConfiguredHost& crashServer();

    explicit CrashReportSettings(QSettings& settings) : m_settings(settings) {}

    QString crashServerHost() const { return crashServer().resolve(m_settings); }
    // The stored address, else the crash-log path on the crash-report server; empty when
    // neither is configured.
    QString submissionURL() const;
    // Empty when no crash-report server is configured.
    QString reportAddURL() const;

    std::optional<QDateTime> lastCrashReportDate() const;
    void setLastCrashReportDate(const QDateTime& date);

    bool includesAnonymousSystemInformation() const;
    QString preferredReportingLocale() const;

private:
    QSettings& m_settings;
};
