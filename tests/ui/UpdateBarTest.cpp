#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QToolButton>

#include "platform/ApplicationInfo.h"
#include "platform/NotificationCenter.h"
#include "service/ServerManagerHTTP.h"
#include "support/ScopedEnvironment.h"
#include "support/ScreenHarness.h"
#include "support/ServiceProcess.h"
#include "support/TestMedia.h"
#include "ui/controls/ImageView.h"
#include "ui/navigation/TitleStrip.h"
#include "ui/navigation/UpdateBar.h"

namespace {

int contentHeight(const MainWindow& window) { return window.centralWidget()->height(); }

}  // namespace

TEST(UpdateBar, ShowsBelowTheTitleStripWithoutTakingRoomFromTheScreensAndCloses) {
    ScreenHarness harness;
    MainWindow& window = *harness.window();
    UpdateBar& bar = *window.updateBar();
    const int heightWithoutBar = contentHeight(window);
    EXPECT_FALSE(bar.isVisible());
    // The logo is centred by the rounding rule; the buttons' view covers the strip above it.
    TitleStrip& strip = *window.titleStrip();
    EXPECT_EQ(strip.logo()->geometry(), QRect(409, 9, 96, 19));
    EXPECT_EQ(harness.titleBarView()->geometry(), strip.rect());
    EXPECT_EQ(strip.childAt(QPoint(450, 18)), harness.titleBarView());

    bar.showNewVersion("1.2", QUrl("http://127.0.0.1:8080/downloads/kesto"));
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return contentHeight(window) == heightWithoutBar + UpdateBar::kHeight; }));
    EXPECT_TRUE(bar.isVisible());
    EXPECT_TRUE(bar.message().startsWith("Orvale 1.2 is available."));
    EXPECT_TRUE(
        bar.message().contains("<a href=\"http://127.0.0.1:8080/downloads/kesto\">Download</a>"));
    EXPECT_EQ(bar.mapTo(&window, QPoint(0, 0)).y(), strip.mapTo(&window, QPoint(0, 38)).y());
    EXPECT_EQ(harness.navigationView().size(), MainWindow::kContentSize);
    EXPECT_EQ(harness.navigationView().mapTo(&window, QPoint(0, 0)).y(),
              bar.mapTo(&window, QPoint(0, UpdateBar::kHeight)).y());

    QToolButton* close = bar.findChild<QToolButton*>();
    ASSERT_NE(close, nullptr);
    EXPECT_EQ(close->accessibleName(), "Close");
    close->click();
    EXPECT_FALSE(bar.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return contentHeight(window) == heightWithoutBar; }));
    EXPECT_EQ(harness.navigationView().mapTo(&window, QPoint(0, 0)).y(),
              strip.mapTo(&window, QPoint(0, 38)).y());
}

TEST(UpdateBar, AnnouncesTheVersionTheMakerSiteOffers) {
    const QString newer = ApplicationInfo::current().shortVersion + ".1";
    const QString fixture = TestMedia::textFile(
        "site.json",
        QJsonDocument(QJsonObject{{"site", QJsonObject{{"version", newer}}}}).toJson());
    ServiceProcess site({"--fixture", fixture});
    ASSERT_TRUE(site.isRunning()) << site.errorString().toStdString();
    ScopedEnvironment makerSite("ORVALE_MAKER_SITE", site.host().toUtf8());

    UpdateBar bar;
    bar.observeNewVersions(NotificationCenter::defaultCenter());
    ServerManagerHTTP client;
    client.getUpdateVersionInfo();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !bar.isHidden(); }, 10000));
    EXPECT_TRUE(bar.message().startsWith("Orvale " + newer + " is available."));
    EXPECT_EQ(bar.downloadPage(), QUrl(site.baseUrl() + "/downloads/kesto"));
}
