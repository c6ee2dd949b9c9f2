#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>

#include "platform/ApplicationInfo.h"
#include "service/MakerSite.h"
#include "support/RecordingSink.h"
#include "support/ScopedEnvironment.h"
#include "support/SessionHarness.h"
#include "support/TestMedia.h"

namespace {

const QString kNewVersion = MakerSite::kNotificationNewVersionAvailable;
const QString kAdReady = MakerSite::kNotificationAdReady;

// A fixture file whose "site" member is the one given.
QString siteFixture(const QJsonObject& site) {
    static int written = 0;
    return TestMedia::textFile(QStringLiteral("site%1.json").arg(++written),
                               QJsonDocument(QJsonObject{{"site", site}}).toJson());
}

// A job manager whose maker's site is an orvale-service serving the given site.
class MakerSiteHarness {
public:
    explicit MakerSiteHarness(const QJsonObject& site, const QStringList& faults = {})
        : harness(SessionHarnessOptions{
              QStringList{QStringLiteral("--fixture"), siteFixture(site)} + faults}),
          makerSite("ORVALE_MAKER_SITE", harness.service.host().toUtf8()),
          log(NotificationCenter::defaultCenter(), {kNewVersion, kAdReady}) {}

    // Until the answer has been handled, which the handler's first log line tells.
    bool waitForLine(const std::string& line) {
        return waitUntil([&] { return recorder.sink().contains(line); });
    }

    SessionHarness harness;
    ScopedEnvironment makerSite;
    ScopedLogRecorder recorder;
    NotificationLog log;
};

struct VersionCase {
    const char* name;
    std::optional<QString> remote;
    bool announced;
};

class UpdateCheck : public testing::TestWithParam<VersionCase> {};

}  // namespace

TEST_P(UpdateCheck, OnlyANewerVersionIsAnnounced) {
    const VersionCase& versionCase = GetParam();
    QJsonObject document;
    if (versionCase.remote) {
        document.insert("version", *versionCase.remote);
    }
    MakerSiteHarness site(document);
    ASSERT_TRUE(site.harness.service.isRunning());

    site.harness.manager.checkForKestoUpdates();
    ASSERT_TRUE(site.waitForLine("didFinishLoadingUpdateInfo"));

    EXPECT_EQ(site.log.count(kNewVersion), versionCase.announced ? 1 : 0);
    if (versionCase.announced) {
        EXPECT_EQ(site.log.received[0].object.value<ServerManagerHTTP*>(),
                  &site.harness.manager.serverManager());
    }
    EXPECT_EQ(site.harness.service.requestsTo("version").value(0).value("method"), "GET");
}

// Relative to this build's version, so that a new release does not turn the cases around.
INSTANTIATE_TEST_SUITE_P(
    Versions, UpdateCheck,
    testing::Values(VersionCase{"Newer", ApplicationInfo::current().shortVersion + ".1", true},
                    VersionCase{"Equal", ApplicationInfo::current().shortVersion + ".0", false},
                    VersionCase{"Older", QStringLiteral("0.1"), false},
                    VersionCase{"Missing", std::nullopt, false}),
    [](const testing::TestParamInfo<VersionCase>& info) { return info.param.name; });

TEST(PromotionalContent, ImageAndLinkArriveAsUserInfoWithTheStoredOrAnEmptyUid) {
    MakerSiteHarness site(
        {{"ad", QJsonObject{{"asset", "{base}/ads/banner.png"}, {"url", "{base}/demo"}}}});
    ASSERT_TRUE(site.harness.service.isRunning());

    site.harness.manager.getAds();
    ASSERT_TRUE(waitUntil([&] { return site.log.count(kAdReady) == 1; }));
    const Notification ready = site.log.received[0];
    EXPECT_EQ(ready.object.value<ServerManagerHTTP*>(), &site.harness.manager.serverManager());
    EXPECT_EQ(ready.userInfo,
              (QVariantMap{{"asset", site.harness.service.baseUrl() + "/ads/banner.png"},
                           {"url", site.harness.service.baseUrl() + "/demo"}}));

    site.harness.defaults.settings().setValue(UserDefaultsManager::kUidKey, "4f2a-9c");
    site.harness.manager.getAds();
    ASSERT_TRUE(waitUntil([&] { return site.log.count(kAdReady) == 2; }));

    const QList<QJsonObject> requests = site.harness.service.requestsTo("ad");
    ASSERT_EQ(requests.size(), 2);
    EXPECT_EQ(requests[0].value("method"), "POST");
    EXPECT_EQ(requests[0].value("body"), "uid=");
    EXPECT_EQ(requests[1].value("body"), "uid=4f2a-9c");
}

TEST(PromotionalContent, AnswerWithoutLinkGivesTheImageOnlyAndWithoutImageNothing) {
    MakerSiteHarness site({{"ad", QJsonObject{{"asset", "{base}/ads/banner.png"}}}});
    ASSERT_TRUE(site.harness.service.isRunning());
    site.harness.manager.getAds();
    ASSERT_TRUE(waitUntil([&] { return site.log.count(kAdReady) == 1; }));
    EXPECT_EQ(site.log.received[0].userInfo,
              (QVariantMap{{"asset", site.harness.service.baseUrl() + "/ads/banner.png"}}));

    MakerSiteHarness linkOnly({{"ad", QJsonObject{{"url", "{base}/demo"}}}});
    linkOnly.harness.manager.getAds();
    ASSERT_TRUE(waitUntil([&] { return linkOnly.log.count(kAdReady) == 1; }));
    EXPECT_EQ(linkOnly.log.received.back().userInfo, QVariantMap());
}

TEST(PromotionalContent, FailureIsOnlyLogged) {
    MakerSiteHarness site({}, {QStringLiteral("--fault"), QStringLiteral("ad=status:500")});
    ASSERT_TRUE(site.harness.service.isRunning());
    site.harness.manager.getAds();
    ASSERT_TRUE(
        site.waitForLine("didFailLoadingAdData (Expected status code in (200-299), got 500)"));
    EXPECT_EQ(site.log.count(kAdReady), 0);
}
