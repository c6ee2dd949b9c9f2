#include <gtest/gtest.h>
#include <unistd.h>

#include <QJsonArray>
#include <QProcess>

#include "crash/CrashReportingFixture.h"
#include "support/OutsideWorld.h"
#include "support/RecordingSink.h"
#include "support/ServiceRecords.h"

using namespace ServiceRecords;

namespace {

class CrashReportLauncherTest : public CrashReportingFixture {
protected:
    // A run of the application that crashes the way it is told to, into this test's folders.
    void crashAChild(const char* mode) {
        QProcess child;
        child.start(QStringLiteral(ORVALE_CRASH_CHILD_PATH),
                    {QLatin1String(mode), reporterOptions().pendingRecordFolder, logFolder()});
        ASSERT_TRUE(child.waitForFinished(30000));
        ASSERT_EQ(child.exitStatus(), QProcess::CrashExit) << child.readAll().toStdString();
    }

    void leaveRecord(const QByteArray& data) {
        QDir().mkpath(reporterOptions().pendingRecordFolder);
        QFile file(m_crashReporter.pendingRecordPath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(data);
    }
};

}  // namespace

// Which fields go with the log is the submission's test, what the log holds the capture's;
// here the summary the next start makes of a real crash.
TEST_F(CrashReportLauncherTest, CrashOfARealChildIsSummedUpAtTheNextStart) {
    m_settings.setValue(CrashReportSettings::kIncludeSystemInformationKey, true);
    launch();  // the first start only notes from when on crash logs count
    settle();
    crashAChild("uncaught-exception");
    auto nextStart = launch();
    ASSERT_TRUE(waitUntil([this] { return m_service.requestsTo("report_add").size() == 1; }))
        << m_service.diagnostics().toStdString();

    EXPECT_EQ(m_service.requestsTo("crash_log").size(), 1);
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

// A record that cannot be parsed is still pending, so that it can be purged.
TEST_F(CrashReportLauncherTest, UnparsableRecordIsPurgedWithoutASummary) {
    leaveRecord("half a rec");
    leaveNewCrashLog();
    EXPECT_EQ(m_crashReporter.loadPendingCrashReportData(), "half a rec");

    auto launcher = launch();
    ASSERT_TRUE(waitUntil([this] { return m_service.requestsTo("crash_log").size() == 1; }));
    ASSERT_TRUE(waitUntil([this] { return !m_crashReporter.hasPendingCrashReport(); }));
    settle();
    EXPECT_TRUE(m_service.requestsTo("report_add").isEmpty());
    // With nothing pending, loading says why and purging has nothing to do.
    QString error;
    EXPECT_FALSE(m_crashReporter.loadPendingCrashReportData(&error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_TRUE(m_crashReporter.purgePendingCrashReport());
}

TEST_F(CrashReportLauncherTest, EnablingFailsWhenAFolderCannotBeMade) {
    QFile blocker(reporterOptions().pendingRecordFolder);
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    QString error;
    EXPECT_FALSE(m_crashReporter.enableCrashReporter(&error));
    EXPECT_TRUE(error.contains(reporterOptions().pendingRecordFolder)) << error.toStdString();
}

TEST_F(CrashReportLauncherTest, UnreadableRecordFailsToLoadWithAReason) {
    if (geteuid() == 0) {
        GTEST_SKIP() << "root reads any file";
    }
    leaveRecord(CrashReportRecord().toData());
    QFile::setPermissions(m_crashReporter.pendingRecordPath(), QFileDevice::Permissions());
    QString error;
    EXPECT_FALSE(m_crashReporter.loadPendingCrashReportData(&error));
    EXPECT_TRUE(error.contains(m_crashReporter.pendingRecordPath())) << error.toStdString();
    EXPECT_TRUE(m_crashReporter.purgePendingCrashReport());
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

TEST_F(CrashReportLauncherTest, WithoutAServerCrashReportsStayOnTheMachine) {
    const OutsideWorld world;
    const ScopedEnvironment proxy("http_proxy", world.address());
    const ScopedEnvironment noServer("ORVALE_CRASH_SERVER", QByteArray());
    ScopedLogRecorder recorder;
    leaveNewCrashLog();
    CrashReportRecord record;
    record.systemInfo.timestamp = QDateTime::currentDateTimeUtc();
    m_manager.sendCrashReport(record);

    auto launcher = launch();
    settle();
    EXPECT_EQ(world.connections, 0);
    EXPECT_TRUE(m_service.requests().isEmpty());
    EXPECT_EQ(launcher->crashLogFinder().sender(), nullptr);
    EXPECT_TRUE(
        recorder.sink().contains("No crash-report server is configured: crash logs are not sent"));
    EXPECT_TRUE(recorder.sink().contains(
        "No crash-report server is configured: the crash record is not sent"));
}
