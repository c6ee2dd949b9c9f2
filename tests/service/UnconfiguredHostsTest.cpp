#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

#include "crash/CrashReportLauncher.h"
#include "service/MakerSite.h"
#include "support/RecordingSink.h"
#include "support/ScopedEnvironment.h"
#include "jobs/DataManager.h"
#include "support/EventLoop.h"
#include "support/FakePowerAssertion.h"

namespace {

// Every request for a host that is not this machine goes through a proxy; this one only counts
// the connections made to it. Whatever the application would send out reaches it.
class OutsideWorld {
public:
    OutsideWorld() {
        server_.listen(QHostAddress::LocalHost);
        QObject::connect(&server_, &QTcpServer::newConnection, [this] {
            while (QTcpSocket* socket = server_.nextPendingConnection()) {
                ++connections;
                socket->close();
            }
        });
    }

    QByteArray address() const {
        return "http://127.0.0.1:" + QByteArray::number(server_.serverPort());
    }

    int connections = 0;

private:
    QTcpServer server_;
};

class UnconfiguredHosts : public testing::Test {
protected:
    OutsideWorld world;
    ScopedEnvironment proxy{"http_proxy", world.address()};
    ScopedEnvironment noMakerSite{"ORVALE_MAKER_SITE", QByteArray()};
    ScopedEnvironment noCrashServer{"ORVALE_CRASH_SERVER", QByteArray()};
    ScopedLogRecorder recorder;
};

}  // namespace

TEST(HostRule, AnEmptyValueCountsAsUnsetAndThisBuildNamesNoHost) {
    QTemporaryDir dir;
    QSettings settings(dir.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    ScopedEnvironment empty("ORVALE_MAKER_SITE", "  ");
    settings.setValue(QStringLiteral("MakerSiteHost"), QStringLiteral("127.0.0.1:8080"));
    EXPECT_EQ(MakerSite::configuredHost().resolve(settings), QStringLiteral("127.0.0.1:8080"));

    settings.setValue(QStringLiteral("MakerSiteHost"), QString());
    EXPECT_EQ(MakerSite::configuredHost().resolve(settings), QString());
    EXPECT_TRUE(CrashReportSettings(settings).submissionURL().isEmpty());
    EXPECT_TRUE(CrashReportSettings(settings).reportAddURL().isEmpty());
    EXPECT_FALSE(MakerSite::isConfigured());
}

TEST_F(UnconfiguredHosts, TheMakerSiteIsNotAskedAndTheLogSaysSo) {
    NotificationCenter center;
    FakePowerAssertion power;
    DataManager manager(center, power);
    {
        // The proxy does catch what goes out: a host that is configured is asked.
        ScopedEnvironment elsewhere("ORVALE_MAKER_SITE", "maker.invalid");
        EXPECT_TRUE(MakerSite::isConfigured());
        manager.checkForKestoUpdates();
        ASSERT_TRUE(waitUntil([&] { return world.connections == 1; }));
    }

    manager.checkForKestoUpdates();
    manager.getAds();
    settle();
    EXPECT_EQ(world.connections, 1);
    EXPECT_TRUE(
        recorder.sink().contains("No maker's site is configured: the update check is not made"));
    EXPECT_TRUE(recorder.sink().contains(
        "No maker's site is configured: the promotional request is not made"));
}

TEST_F(UnconfiguredHosts, CrashReportsStayOnTheMachine) {
    QTemporaryDir dir;
    QSettings settings(dir.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    CrashReporter::Options options = CrashReporter::Options::defaults();
    options.pendingRecordFolder = dir.filePath(QStringLiteral("pending"));
    options.crashLogDirectory = dir.filePath(QStringLiteral("DiagnosticReports"));
    CrashReporter crashReporter(options);
    CrashReportManager manager(settings);
    NotificationCenter center;

    QDir().mkpath(options.crashLogDirectory);
    QFile log(QDir(options.crashLogDirectory).filePath(QStringLiteral("Orvale_1.crash")));
    ASSERT_TRUE(log.open(QIODevice::WriteOnly));
    log.write("Process: Orvale [42]\n");
    log.close();
    settings.setValue(CrashReportSettings::kLastCrashReportDateKey,
                      QDateTime::currentDateTimeUtc().addDays(-1));
    CrashReportRecord record;
    record.systemInfo.timestamp = QDateTime::currentDateTimeUtc();
    manager.sendCrashReport(record);

    CrashReportLauncher launcher(
        CrashReportLauncher::Parts{settings,
                                   center,
                                   crashReporter,
                                   manager,
                                   {{options.crashLogDirectory}, ApplicationInfo::current()}});
    launcher.start();
    settle();
    EXPECT_EQ(world.connections, 0);
    EXPECT_EQ(launcher.crashLogFinder().sender(), nullptr);
    EXPECT_TRUE(
        recorder.sink().contains("No crash-report server is configured: crash logs are not sent"));
    EXPECT_TRUE(recorder.sink().contains(
        "No crash-report server is configured: the crash record is not sent"));
}
