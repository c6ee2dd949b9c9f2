#include "crash/CrashReportLauncher.h"

#include "crash/CrashReportSettings.h"
#include "platform/Log.h"
#include "platform/UserDefaultsManager.h"

CrashReportLauncher::CrashReportLauncher(QObject* parent)
    : CrashReportLauncher(
          Parts{UserDefaultsManager::sharedInstance().settings(),
                NotificationCenter::defaultCenter(), CrashReporter::sharedReporter(),
                CrashReportManager::sharedInstance(), PellCrashReporter::Options::defaults()},
          parent) {}

CrashReportLauncher::CrashReportLauncher(Parts parts, QObject* parent)
    : QObject(parent),
      m_settings(parts.settings),
      m_center(parts.center),
      m_crashReporter(parts.crashReporter),
      m_crashReportManager(parts.crashReportManager),
      m_crashLogFinder(std::make_unique<PellCrashReporter>(parts.settings, parts.center,
                                                           std::move(parts.crashLogs))) {}

CrashReportLauncher::~CrashReportLauncher() { m_center.removeObserver(this); }

void CrashReportLauncher::start() {
    m_center.addObserver(this, QVCrashReportSender::kFinishedNotification,
                         [this](const Notification&) { qvCrashReportSenderFinished(); });
    m_crashLogFinder->checkForNewCrashes();
}

void CrashReportLauncher::qvCrashReportSenderFinished() {
    if (m_crashReporter.hasPendingCrashReport()) {
        handleCrashReport();
    }
    m_crashReporter.setIncludeHostName(
        CrashReportSettings(m_settings).includesAnonymousSystemInformation());
    QString error;
    if (!m_crashReporter.enableCrashReporter(&error)) {
        LOG_WARNING("Warning: Could not enable crash reporter: {}", error);
    }
}

void CrashReportLauncher::handleCrashReport() {
    QString error;
    const std::optional<QByteArray> data = m_crashReporter.loadPendingCrashReportData(&error);
    if (!data) {
        LOG_ERROR("Could not load crash report: {}", error);
    } else if (const auto record = CrashReportRecord::fromData(*data)) {
        m_crashReportManager.sendCrashReport(*record);
    } else {
        LOG_ERROR("Could not parse crash report");
    }
    finish(m_crashReporter);
}

void CrashReportLauncher::finish(CrashReporter& crashReporter) {
    if (!crashReporter.purgePendingCrashReport()) {
        LOG_WARNING("Could not purge the pending crash report at {}",
                    crashReporter.pendingRecordPath());
    }
}
