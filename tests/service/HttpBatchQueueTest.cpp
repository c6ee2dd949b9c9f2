#include <gtest/gtest.h>

#include "service/HttpBatchQueue.h"
#include "service/PlainRequest.h"
#include "support/EventLoop.h"
#include "support/ServiceProcess.h"

namespace {

constexpr int kAnswerDelayMs = 50;
const QString kVersionPath = QStringLiteral("/downloads/kesto/version.json");

// Every answer comes late, so that requests sent side by side would arrive within the delay of
// each other. Stopping a batch at its first failure is the upload job's test.
class HttpBatchQueueTest : public testing::Test {
protected:
    HttpBatchQueueTest()
        : service({"--fault", QStringLiteral("version=delay:%1").arg(kAnswerDelayMs)}) {}

    void SetUp() override {
        ASSERT_TRUE(service.isRunning()) << service.errorString().toStdString();
    }

    // A request named by the path prefix it carries, which notes its answer or failure in
    // `finished`.
    HttpBatchQueue::Item item(const QString& name) {
        auto success = [this, name](const HttpResponse&) { finished.push_back(name); };
        auto failure = [this, name](const QString& description) {
            finished.push_back(name + " failed: " + description);
        };
        return {HttpRequest::get(QUrl(service.baseUrl() + name + kVersionPath)),
                PlainRequest::callbacks(success, failure)};
    }

    HttpBatchQueue::BatchCallbacks batchCallbacks(const QString& name) {
        return {[this, name](int done, int total) {
                    progress.push_back(QStringLiteral("%1 %2/%3").arg(name).arg(done).arg(total));
                },
                [this, name] { completed.push_back(name); }};
    }

    // The names of the requests that reached the service, in the order they were answered.
    QStringList arrived() const {
        QStringList names;
        for (const QJsonObject& request : service.requests()) {
            names << request["prefix"].toString();
        }
        return names;
    }

    ServiceProcess service;
    HttpTransport transport;
    HttpBatchQueue queue{transport};
    QStringList finished;
    QStringList progress;
    QStringList completed;
};

}  // namespace

TEST_F(HttpBatchQueueTest, RunsRequestsStrictlyOneAtATimeInOrderAcrossBatches) {
    queue.enqueueBatch({item("/0"), item("/1"), item("/2")}, batchCallbacks("A"));
    queue.enqueueBatch({item("/3")}, batchCallbacks("B"));
    ASSERT_TRUE(waitUntil([&] { return completed.size() == 2; }));

    const QList<QJsonObject> requests = service.requests();
    ASSERT_EQ(arrived(), (QStringList{"/0", "/1", "/2", "/3"}));
    for (qsizetype i = 1; i < requests.size(); ++i) {
        const auto arrival = [&](qsizetype at) {
            return QDateTime::fromString(requests[at]["time"].toString(), Qt::ISODateWithMs);
        };
        EXPECT_GE(arrival(i - 1).msecsTo(arrival(i)), kAnswerDelayMs) << "request " << i;
    }
    EXPECT_EQ(finished, (QStringList{"/0", "/1", "/2", "/3"}));
    EXPECT_EQ(progress, (QStringList{"A 1/3", "A 2/3", "A 3/3", "B 1/1"}));
    EXPECT_EQ(completed, (QStringList{"A", "B"}));
    EXPECT_TRUE(queue.isIdle());
}

TEST_F(HttpBatchQueueTest, CancelAllDropsTheRunningAndTheWaitingRequests) {
    queue.enqueueBatch({item("/0"), item("/1")}, batchCallbacks("A"));
    queue.enqueue(item("/2").request, item("/2").callbacks);
    queue.cancelAll();
    settle();

    EXPECT_TRUE(finished.isEmpty() && progress.isEmpty() && completed.isEmpty());

    // The queue carries on with what comes after.
    queue.enqueueBatch({item("/3")}, batchCallbacks("B"));
    ASSERT_TRUE(waitUntil([&] { return completed == QStringList{"B"}; }));
    EXPECT_EQ(finished, QStringList{"/3"});
    EXPECT_FALSE(arrived().contains("/1") || arrived().contains("/2"));
}
