#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "crash/CrashReportSettings.h"
#include "jobs/DataManager.h"
#include "service/MakerSite.h"
#include "support/EventLoop.h"
#include "support/FakePowerAssertion.h"
#include "support/OutsideWorld.h"
#include "support/RecordingSink.h"
#include "support/ScopedEnvironment.h"

namespace {

class UnconfiguredHosts : public testing::Test {
protected:
    OutsideWorld world;
    ScopedEnvironment proxy{"http_proxy", world.address()};
    ScopedEnvironment noMakerSite{"ORVALE_MAKER_SITE", QByteArray()};
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
