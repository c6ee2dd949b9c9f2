#include <gtest/gtest.h>

#include <QThread>

#include "platform/NotificationCenter.h"
#include "support/EventLoop.h"

TEST(NotificationCenter, DeliversByExactNameWithObjectAndUserInfo) {
    NotificationCenter center;
    QObject owner;
    QList<Notification> received;
    center.addObserver(&owner, QStringLiteral("kNotificationDidFinishUploading"),
                       [&](const Notification& n) { received << n; });

    center.post(QStringLiteral("kNotificationDidFinishUploading"), 42,
                {{QStringLiteral("url"), QStringLiteral("x")}});
    center.post(QStringLiteral("kNotificationDidFinishUpload"));
    center.post(QStringLiteral("knotificationdidfinishuploading"));

    ASSERT_EQ(received.size(), 1);
    EXPECT_EQ(received[0].object.toInt(), 42);
    EXPECT_EQ(received[0].userInfo.value(QStringLiteral("url")).toString(), QStringLiteral("x"));
}

// An owner gone, or removed by another handler during a delivery, hears nothing more.
TEST(NotificationCenter, ObserversGoAwayWithTheirOwnerOrWhenRemovedWhileDelivering) {
    NotificationCenter center;
    QObject first;
    QObject second;
    int calls = 0;
    {
        QObject owner;
        center.addObserver(&owner, "a", [&](const Notification&) { ++calls; });
        center.post("a");
    }
    center.addObserver(&first, "b", [&](const Notification&) { center.removeObserver(&second); });
    center.addObserver(&second, "b", [&](const Notification&) { ++calls; });
    center.post("a");
    center.post("b");
    EXPECT_EQ(calls, 1);
}

TEST(NotificationCenter, PostsFromOtherThreadsAreDeliveredOnTheMainThread) {
    NotificationCenter center;
    QObject owner;
    QThread* deliveredOn = nullptr;
    center.addObserver(&owner, QStringLiteral("a"),
                       [&](const Notification&) { deliveredOn = QThread::currentThread(); });

    QThread* worker = QThread::create([&] { center.post(QStringLiteral("a")); });
    worker->start();
    worker->wait();
    EXPECT_EQ(deliveredOn, nullptr);
    ASSERT_TRUE(waitUntil([&] { return deliveredOn != nullptr; }));
    EXPECT_EQ(deliveredOn, QThread::currentThread());
    delete worker;
}
