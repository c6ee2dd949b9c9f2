#include <gtest/gtest.h>

#include <QThread>

#include "platform/NotificationCenter.h"
#include "support/EventLoop.h"

// Names match exactly. An owner gone, or removed by another handler during a delivery, hears
// nothing more.
TEST(NotificationCenter, DeliversByExactNameUntilTheOwnerGoesOrIsRemovedWhileDelivering) {
    NotificationCenter center;
    QObject first;
    QObject second;
    int calls = 0;
    {
        QObject owner;
        center.addObserver(&owner, "a", [&](const Notification& n) {
            ++calls;
            EXPECT_EQ(n.object.toInt(), 42);
            EXPECT_EQ(n.userInfo.value("url").toString(), "x");
        });
        center.post("a", 42, {{"url", "x"}});
        center.post("A");
        center.post("ab");
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
