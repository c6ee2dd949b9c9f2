#include <gtest/gtest.h>

#include <QDBusArgument>

#include "platform/DesktopNotifier.h"
#include "platform/LauncherProgress.h"
#include "support/EventLoop.h"
#include "support/RecordingSink.h"
#include "support/SessionBus.h"

namespace {

class DesktopIntegration : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(bus.isRunning()) << "dbus-daemon did not start"; }

    SessionBus bus;
    BusListener desktop{bus.connect("desktop")};
};

}  // namespace

TEST_F(DesktopIntegration, LauncherGetsEachWholePercentOnceAndTheBarHiddenAtTheEnd) {
    ASSERT_TRUE(desktop.listenForSignal("com.canonical.Unity.LauncherEntry", "Update"));
    LauncherProgress launcher(bus.connect("orvale"));

    launcher.setProgress(std::nullopt);  // nothing on show yet
    for (const double fraction : {0.451, 0.4519, 0.46, 1.0}) {
        launcher.setProgress(fraction);
    }
    launcher.setProgress(std::nullopt);
    launcher.setProgress(std::nullopt);
    ASSERT_TRUE(waitUntil([&] { return desktop.received.size() >= 4; }));
    waitUntil([] { return false; }, 200);  // nothing more follows
    ASSERT_EQ(desktop.received.size(), 4);

    const double shown[] = {0.451, 0.46, 1.0};
    for (qsizetype i = 0; i < 4; ++i) {
        const QDBusMessage& update = desktop.received[i];
        EXPECT_EQ(update.signature(), "sa{sv}");
        EXPECT_EQ(update.arguments().at(0).toString(), "application://orvale.desktop");
        const auto properties = qdbus_cast<QVariantMap>(update.arguments().at(1));
        EXPECT_EQ(properties.value("progress-visible").toBool(), i < 3) << i;
        if (i < 3) {
            EXPECT_DOUBLE_EQ(properties.value("progress").toDouble(), shown[i]);
        }
    }
}

TEST_F(DesktopIntegration, JobEndReachesTheNotificationService) {
    ASSERT_TRUE(desktop.serve("org.freedesktop.Notifications", "/org/freedesktop/Notifications"));
    DesktopNotifier notifier(bus.connect("orvale"));

    notifier.notify("Encoding finished", "2 completed, 1 failed");
    ASSERT_TRUE(waitUntil([&] { return desktop.received.size() == 1; }));
    const QDBusMessage& call = desktop.received[0];
    EXPECT_EQ(call.signature(), "susssasa{sv}i");
    const QVariantList arguments = call.arguments();
    EXPECT_EQ(arguments.at(0).toString(), "Orvale");
    EXPECT_EQ(arguments.at(3).toString(), "Encoding finished");
    EXPECT_EQ(arguments.at(4).toString(), "2 completed, 1 failed");
}

TEST(DesktopIntegrationWithoutBus, NothingIsSentAndTheLogSaysSoOnce) {
    ScopedLogRecorder recorder;
    const QDBusConnection none =
        QDBusConnection::connectToBus(QStringLiteral("unix:path=/nonexistent/bus"), "none");
    LauncherProgress launcher(none);
    DesktopNotifier notifier(none);
    launcher.setProgress(0.5);
    notifier.notify("Encoding finished", "1 completed, 0 failed");
    QDBusConnection::disconnectFromBus("none");

    int lines = 0;
    for (const std::string& line : recorder.sink().lines()) {
        lines += line.find("No session bus") != std::string::npos ? 1 : 0;
    }
    EXPECT_EQ(lines, 2);
    EXPECT_TRUE(recorder.sink().contains("the launcher shows no progress"));
    EXPECT_TRUE(recorder.sink().contains("jobs end without desktop notifications"));
}
