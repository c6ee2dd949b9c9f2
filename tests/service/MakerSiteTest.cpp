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
    QJsonObject document;
    bool announced;
};

class UpdateCheck : public testing::TestWithParam<VersionCase> {};

}  // namespace

TEST_P(UpdateCheck, OnlyANewerVersionIsAnnounced) {
    const VersionCase& versionCase = GetParam();
    MakerSiteHarness site(versionCase.document);
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
    testing::Values(
        VersionCase{"Newer", {{"version", ApplicationInfo::current().shortVersion + ".1"}}, true},
        VersionCase{"Equal", {{"version", ApplicationInfo::current().shortVersion + ".0"}}, false},
        VersionCase{"Older", {{"version", "0.1"}}, false}, VersionCase{"Missing", {}, false}),
    [](const testing::TestParamInfo<VersionCase>& info) { return info.param.name; });

// The link comes only with an image, which an answer without one does not give either.
TEST(PromotionalContent, ImageAndLinkArriveAsUserInfoAlongWithTheStoredOrAnEmptyUid) {
    struct AdCase {
        QJsonObject ad;
        QString uid;
        QStringList given;
    };
    const QString banner = "{base}/ads/banner.png";
    const QString demo = "{base}/demo";
    for (const AdCase& c :
         {AdCase{{{"asset", banner}, {"url", demo}}, "", {"asset", "url"}},
          AdCase{{{"asset", banner}}, "4f2a-9c", {"asset"}}, AdCase{{{"url", demo}}, "", {}}}) {
        SCOPED_TRACE(c.given.join(',').toStdString());
        MakerSiteHarness site({{"ad", c.ad}});
        ASSERT_TRUE(site.harness.service.isRunning());
        if (!c.uid.isEmpty()) {
            site.harness.defaults.settings().setValue(UserDefaultsManager::kUidKey, c.uid);
        }
        site.harness.manager.getAds();
        ASSERT_TRUE(waitUntil([&] { return site.log.count(kAdReady) == 1; }));

        const Notification ready = site.log.received[0];
        EXPECT_EQ(ready.object.value<ServerManagerHTTP*>(), &site.harness.manager.serverManager());
        QVariantMap expected;
        for (const QString& key : c.given) {
            expected[key] = c.ad[key].toString().replace("{base}", site.harness.service.baseUrl());
        }
        EXPECT_EQ(ready.userInfo, expected);
        const QJsonObject request = site.harness.service.requestsTo("ad").value(0);
        EXPECT_EQ(request.value("method"), "POST");
        EXPECT_EQ(request.value("body"), "uid=" + c.uid);
    }
}

TEST(PromotionalContent, FailureIsOnlyLogged) {
    MakerSiteHarness site({}, {QStringLiteral("--fault"), QStringLiteral("ad=status:500")});
    ASSERT_TRUE(site.harness.service.isRunning());
    site.harness.manager.getAds();
    ASSERT_TRUE(
        site.waitForLine("didFailLoadingAdData (Expected status code in (200-299), got 500)"));
    EXPECT_EQ(site.log.count(kAdReady), 0);
}
