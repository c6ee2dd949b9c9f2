#include <gtest/gtest.h>

#include "service/HttpBatchQueue.h"
#include "service/HttpServerFixture.h"
#include "service/PlainRequest.h"
#include "support/EventLoop.h"

namespace {

class HttpBatchQueueTest : public HttpServerFixture {
protected:
    void TearDown() override {
        queue.reset();
        HttpServerFixture::TearDown();
    }

    // A request for /seq/N that notes its answer, or its failure, in `finished`.
    HttpBatchQueue::Item item(const QString& path, std::function<void()> onFailure = {}) {
        auto success = [this, path](const HttpResponse&) {
            EXPECT_TRUE(onMainThread());
            finished.push_back(path);
        };
        auto failure = [this, path, onFailure](const QString& description) {
            finished.push_back(path + " failed: " + description);
            if (onFailure) {
                onFailure();
            }
        };
        return {HttpRequest::get(server.url(path)), PlainRequest::callbacks(success, failure)};
    }

    HttpBatchQueue::BatchCallbacks batchCallbacks(const QString& name) {
        return {[this, name](int done, int total) {
                    progress.push_back(QStringLiteral("%1 %2/%3").arg(name).arg(done).arg(total));
                },
                [this, name] { completed.push_back(name); }};
    }

    std::unique_ptr<HttpBatchQueue> queue = std::make_unique<HttpBatchQueue>(*transport);
    QStringList finished;
    QStringList progress;
    QStringList completed;
};

}  // namespace

TEST_F(HttpBatchQueueTest, RunsRequestsStrictlyOneAtATimeInOrderAcrossBatches) {
    queue->enqueueBatch({item("/seq/0"), item("/seq/1"), item("/seq/2")}, batchCallbacks("A"));
    queue->enqueueBatch({item("/seq/3")}, batchCallbacks("B"));
    ASSERT_TRUE(waitUntil([&] { return completed.size() == 2; }));

    EXPECT_EQ(serverEvents(), (std::vector<std::string>{"start 0", "end 0", "start 1", "end 1",
                                                        "start 2", "end 2", "start 3", "end 3"}));
    EXPECT_EQ(finished, (QStringList{"/seq/0", "/seq/1", "/seq/2", "/seq/3"}));
    EXPECT_EQ(progress, (QStringList{"A 1/3", "A 2/3", "A 3/3", "B 1/1"}));
    EXPECT_EQ(completed, (QStringList{"A", "B"}));
    EXPECT_TRUE(queue->isIdle());
}

TEST_F(HttpBatchQueueTest, CancelAllFromAFailureStopsTheRestOfTheBatch) {
    auto stop = [this] { queue->cancelAll(); };
    queue->enqueueBatch({item("/seq/0"), item("/status/500", stop), item("/seq/2")},
                        batchCallbacks("A"));
    ASSERT_TRUE(waitUntil([&] { return finished.size() == 2; }));
    settle();

    EXPECT_EQ(
        finished,
        (QStringList{"/seq/0", "/status/500 failed: Expected status code in (200-299), got 500"}));
    EXPECT_EQ(progress, QStringList{"A 1/3"});
    EXPECT_TRUE(completed.isEmpty());
    EXPECT_EQ(serverEvents(), (std::vector<std::string>{"start 0", "end 0"}));
    EXPECT_TRUE(queue->isIdle());
}

TEST_F(HttpBatchQueueTest, CancelAllDropsTheRunningAndTheWaitingRequests) {
    queue->enqueueBatch({item("/slow"), item("/seq/1")}, batchCallbacks("A"));
    queue->enqueue(HttpRequest::get(server.url("/seq/2")), item("/seq/2").callbacks);
    ASSERT_TRUE(waitUntil([&] { return slowArrived(); }));
    queue->cancelAll();
    settle();

    EXPECT_TRUE(finished.isEmpty());
    EXPECT_TRUE(progress.isEmpty());
    EXPECT_TRUE(completed.isEmpty());
    EXPECT_TRUE(serverEvents().empty());

    // The queue carries on with what comes after.
    queue->enqueueBatch({item("/seq/3")}, batchCallbacks("B"));
    ASSERT_TRUE(waitUntil([&] { return completed == QStringList{"B"}; }));
    EXPECT_EQ(finished, QStringList{"/seq/3"});
}
