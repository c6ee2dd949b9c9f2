#include "crash/CrashReportSettings.h"

#include "BuildInfo.h"
#include "platform/Log.h"

const ConfiguredHost& CrashReportSettings::crashServer() {
    static const ConfiguredHost host{"ORVALE_CRASH_SERVER", QStringLiteral("CrashReportServerHost"),
                                     QLatin1String(BuildInfo::crashServerHost)};
    return host;
}

QString CrashReportSettings::submissionURL() const {
    const QString stored = m_settings.value(kSubmissionURLKey).toString().trimmed();
    if (!stored.isEmpty()) {
        return stored;
    }
    const QString host = crashServerHost();
    return host.isEmpty() ? QString() : ConfiguredHost::address(host, kCrashLogPath);
}

QString CrashReportSettings::reportAddURL() const {
    const QString host = crashServerHost();
    return host.isEmpty() ? QString() : ConfiguredHost::address(host, kReportAddPath);
}

std::optional<QDateTime> CrashReportSettings::lastCrashReportDate() const {
    const QDateTime date = m_settings.value(kLastCrashReportDateKey).toDateTime();
    return date.isValid() ? std::optional<QDateTime>(date) : std::nullopt;
}

void CrashReportSettings::setLastCrashReportDate(const QDateTime& date) {
    m_settings.setValue(kLastCrashReportDateKey, date.toUTC());
    // At once: the next crash may come before the store would have written it on its own.
    m_settings.sync();
    if (m_settings.status() != QSettings::NoError) {
        LOG_WARNING("Could not write {} to {}", kLastCrashReportDateKey, m_settings.fileName());
    }
}

bool CrashReportSettings::includesAnonymousSystemInformation() const {
    return m_settings.value(kIncludeSystemInformationKey, false).toBool();
}

QString CrashReportSettings::preferredReportingLocale() const {
    const QString stored = m_settings.value(kPreferredReportingLocaleKey).toString().trimmed();
    return stored.isEmpty() ? kDefaultReportingLocale : stored;
}
