#include "crash/CrashReportManager.h"

#include "crash/CrashReportSettings.h"
#include "platform/Log.h"
#include "platform/UserDefaultsManager.h"
#include "service/PlainRequest.h"
#include "service/ServerManagerHTTP.h"

namespace {

const QString kAbsent = QStringLiteral("(null)");

// The moment as a date's plain description reads: UTC, with its offset.
QString timestampText(const QDateTime& timestamp) {
    return timestamp.toUTC().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")) +
           QStringLiteral(" +0000");
}

}  // namespace

CrashReportManager& CrashReportManager::sharedInstance() {
    static CrashReportManager manager(UserDefaultsManager::sharedInstance().settings());
    return manager;
}

CrashReportManager::CrashReportManager(QSettings& settings, ApplicationInfo application)
    : m_settings(settings), m_application(std::move(application)) {}

QString CrashReportManager::descriptionOf(const CrashReportRecord& record) {
    const auto& exception = record.exceptionInfo;
    return QStringLiteral(
               "Crashed on %1\nCrashed with exception: (name:%2, reason:%3)\n"
               "Crashed with signal %4 (code %5, address=0x%6)")
        .arg(timestampText(record.systemInfo.timestamp),
             exception ? exception->exceptionName : kAbsent,
             exception ? exception->exceptionReason : kAbsent, record.signalInfo.name,
             record.signalInfo.code, QString::number(record.signalInfo.address, 16));
}

QString CrashReportManager::versionOf(const ApplicationInfo& application) {
    return QStringLiteral("v%1.%2").arg(application.shortVersion, application.version);
}

void CrashReportManager::sendCrashReport(const CrashReportRecord& record) {
    const QString url = CrashReportSettings(m_settings).reportAddURL();
    if (url.isEmpty()) {
        LOG_INFO("No crash-report server is configured: the crash record is not sent");
        return;
    }
    const QVariantMap pairs{{QStringLiteral("description"), descriptionOf(record)},
                            {QStringLiteral("version"), versionOf(m_application)}};
    LOG_VERBOSE("Sending the crash record to {}", url);
    PlainRequest::start(
        m_transport,
        ServerManagerHTTP::requestWithURL(url, "POST", std::nullopt,
                                          ServerManagerHTTP::actionStringFromDictionary(pairs)),
        [](const HttpResponse&) { LOG_VERBOSE("Crash record sent"); },
        [](const QString& description) { LOG_VERBOSE("Crash record not sent: {}", description); });
}
