#include <gtest/gtest.h>

#include "jobs/DataManager.h"
#include "service/MakerSite.h"
#include "support/EventLoop.h"
#include "support/FakePowerAssertion.h"
#include "support/OutsideWorld.h"
#include "support/RecordingSink.h"
#include "support/ScopedEnvironment.h"

// Which of environment and settings decides is the configured host's test; here that this build
// names no maker's site of its own (the crash-report server's is the launcher's test), so that
// nothing is asked unless one is configured.
TEST(UnconfiguredHosts, TheMakerSiteIsNotAskedAndTheLogSaysSo) {
    const OutsideWorld world;
    const ScopedEnvironment proxy("http_proxy", world.address());
    const ScopedEnvironment noMakerSite("ORVALE_MAKER_SITE", QByteArray());
    ScopedLogRecorder recorder;
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

    EXPECT_FALSE(MakerSite::isConfigured());
    manager.checkForKestoUpdates();
    manager.getAds();
    settle();
    EXPECT_EQ(world.connections, 1);
    EXPECT_TRUE(
        recorder.sink().contains("No maker's site is configured: the update check is not made"));
    EXPECT_TRUE(recorder.sink().contains(
        "No maker's site is configured: the promotional request is not made"));
}
