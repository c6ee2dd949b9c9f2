#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include "crash/CrashReportLauncher.h"
#include "crash/PellSystemInformation.h"
#include "support/EventLoop.h"
#include "support/ScopedEnvironment.h"
#include "support/ServiceProcess.h"
#include "support/ServiceRecords.h"

using namespace ServiceRecords;

namespace {

// Two starts of the application as far as crash reporting goes, with the crash-report server's
// host pointed at an orvale-service of its own and every folder in a temporary one.
class CrashReportLauncherTest : public testing::Test {
protected:
    CrashReportLauncherTest()
        : m_server("ORVALE_CRASH_SERVER", m_service.host().toUtf8()),
          m_settings(m_dir.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat),
          m_crashReporter(reporterOptions()),
          m_manager(m_settings) {}

    void SetUp() override {
        ASSERT_TRUE(m_service.isRunning()) << m_service.errorString().toStdString();
    }

    CrashReporter::Options reporterOptions() const {
        CrashReporter::Options options = CrashReporter::Options::defaults();
        options.pendingRecordFolder = m_dir.filePath(QStringLiteral("pending"));
        options.crashLogDirectory = m_dir.filePath(QStringLiteral("DiagnosticReports"));
        return options;
    }

    std::unique_ptr<CrashReportLauncher> launch() {
        auto launcher = std::make_unique<CrashReportLauncher>(CrashReportLauncher::Parts{
            m_settings,
            m_center,
            m_crashReporter,
            m_manager,
            {{reporterOptions().crashLogDirectory}, ApplicationInfo::current()}});
        launcher->start();
        return launcher;
    }

    // A run of the application that crashes the way it is told to, into this test's folders.
    void crashAChild(const char* mode) {
        QProcess child;
        child.start(QStringLiteral(ORVALE_CRASH_CHILD_PATH),
                    {QLatin1String(mode), reporterOptions().pendingRecordFolder,
                     reporterOptions().crashLogDirectory});
        ASSERT_TRUE(child.waitForFinished(30000));
        ASSERT_EQ(child.exitStatus(), QProcess::CrashExit) << child.readAll().toStdString();
    }

    void leaveRecord(const QByteArray& data) {
        QDir().mkpath(reporterOptions().pendingRecordFolder);
        QFile file(m_crashReporter.pendingRecordPath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(data);
    }

    void leaveNewCrashLog() {
        const QString folder = reporterOptions().crashLogDirectory;
        QDir().mkpath(folder);
        QFile file(QDir(folder).filePath(QStringLiteral("Orvale_2026-03-01-100000_host.crash")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("Process: Orvale [42]\n");
        file.close();
        m_settings.setValue(CrashReportSettings::kLastCrashReportDateKey,
                            QDateTime::currentDateTimeUtc().addDays(-1));
    }

    bool crashLogAnswered(int count) {
        return waitUntil([&] { return m_service.requestsTo("crash_log").size() == count; });
    }

    QTemporaryDir m_dir;
    ServiceProcess m_service;
    ScopedEnvironment m_server;
    QSettings m_settings;
    NotificationCenter m_center;
    CrashReporter m_crashReporter;
    CrashReportManager m_manager;
};

}  // namespace

TEST_F(CrashReportLauncherTest, CrashOfARealChildReachesTheServiceAtTheNextStart) {
    m_settings.setValue(CrashReportSettings::kIncludeSystemInformationKey, true);
    launch();
    settle();
    EXPECT_TRUE(m_service.requests().isEmpty());

    crashAChild("uncaught-exception");
    ASSERT_TRUE(m_crashReporter.hasPendingCrashReport());

    auto secondStart = launch();
    ASSERT_TRUE(waitUntil([this] { return m_service.requestsTo("report_add").size() == 1; }))
        << m_service.diagnostics().toStdString();

    const QJsonObject crashLog = m_service.requestsTo("crash_log").value(0);
    EXPECT_EQ(crashLog.value("status").toInt(), 200);
    EXPECT_EQ(crashLog.value("problems").toArray(), QJsonArray());
    const QJsonObject upload = m_service.uploads().value(0);
    QStringList expected;
    for (const auto& [name, value] : PellSystemInformation().formFields()) {
        expected << name;
    }
    expected << "systemInformationIncluded"
             << "applicationName"
             << "applicationIdentifier"
             << "applicationVersion"
             << "applicationShortVersion"
             << "date";
    EXPECT_EQ(fieldNames(upload), expected);
    const QJsonObject file = firstFile(upload);
    EXPECT_TRUE(file.value("filename").toString().startsWith("Orvale_"));
    EXPECT_TRUE(storedContent(file).contains("Exception Name:  std::runtime_error"));

    const QJsonObject summary = m_service.requestsTo("report_add").value(0);
    EXPECT_EQ(summary.value("status").toInt(), 200);
    EXPECT_EQ(summary.value("problems").toArray(), QJsonArray());
    const QString description = pairValue(summary, "description");
    EXPECT_TRUE(description.startsWith("Crashed on 20")) << description.toStdString();
    EXPECT_TRUE(description.endsWith(
        "\nCrashed with exception: (name:std::runtime_error, reason:the disk is on fire\n"
        "and so is the fan)\nCrashed with signal SIGABRT (code SI_TKILL, address=0x0)"))
        << description.toStdString();
    EXPECT_EQ(pairValue(summary, "version"),
              CrashReportManager::versionOf(ApplicationInfo::current()));
    EXPECT_FALSE(m_crashReporter.hasPendingCrashReport());
    // Capture is on again, and as the user agreed to send machine facts, its logs name the host.
    EXPECT_TRUE(m_crashReporter.options().includeHostName);
}

TEST_F(CrashReportLauncherTest, UnparsableRecordIsPurgedWithoutASummary) {
    leaveRecord("half a rec");
    leaveNewCrashLog();

    auto launcher = launch();
    ASSERT_TRUE(crashLogAnswered(1));
    ASSERT_TRUE(waitUntil([this] { return !m_crashReporter.hasPendingCrashReport(); }));
    settle();
    EXPECT_TRUE(m_service.requestsTo("report_add").isEmpty());
}

TEST_F(CrashReportLauncherTest, RecordWaitsForAStartThatSentACrashLog) {
    CrashReportRecord record;
    record.systemInfo.timestamp = QDateTime::currentDateTimeUtc();
    record.signalInfo = {QStringLiteral("SIGSEGV"), QStringLiteral("SEGV_MAPERR"), 0x10};
    leaveRecord(record.toData());
    m_settings.setValue(CrashReportSettings::kLastCrashReportDateKey,
                        QDateTime::currentDateTimeUtc());

    auto launcher = launch();
    settle();
    EXPECT_TRUE(m_service.requests().isEmpty());
    EXPECT_TRUE(m_crashReporter.hasPendingCrashReport());
}
