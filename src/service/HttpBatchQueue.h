#pragma once

#include <QList>
#include <deque>
#include <functional>
#include <memory>

#include "service/HttpTransport.h"

// Runs requests through a transport strictly one at a time, in the order given: the next one
// starts only after the previous one has reported on the main thread. Requests are enqueued in
// batches, each with an optional report after every request and one when all have ended.
//
// cancelAll() cancels the running request and drops the waiting ones; none of them, and none of
// their batches, report anything afterwards. It may be called from inside any callback of the
// queue, which is how a batch is stopped at its first failure. The queue must not outlive its
// transport; destroying it cancels everything it holds.
class HttpBatchQueue {
public:
    struct Item {
        HttpRequest request;
        HttpTransport::Callbacks callbacks;
    };

    struct BatchCallbacks {
        // After each request of the batch has reported.
        std::function<void(int finished, int total)> progress;
        // Once every request of the batch has reported; at once for an empty batch that the
        // queue reaches while idle.
        std::function<void()> completed;
    };

    explicit HttpBatchQueue(HttpTransport& transport);
    HttpBatchQueue(const HttpBatchQueue&) = delete;
    HttpBatchQueue& operator=(const HttpBatchQueue&) = delete;
    ~HttpBatchQueue();

    void enqueue(HttpRequest request, HttpTransport::Callbacks callbacks);
    void enqueueBatch(QList<Item> items, BatchCallbacks callbacks = {});
    void cancelAll();

    bool isIdle() const { return running_ == 0 && batches_.empty(); }

private:
    struct Batch {
        std::deque<Item> waiting;
        int total = 0;
        int finished = 0;
        BatchCallbacks callbacks;
    };
    using Finished = std::function<void(const HttpResponse&)>;

    void startNext();
    void startFirstWaiting(Batch& batch);
    void onFinished(const Finished& finished, const HttpResponse& response);
    // Runs a caller's callback; false when the queue was cleared or destroyed meanwhile.
    bool deliver(const std::function<void()>& callback);

    HttpTransport& transport_;
    std::deque<Batch> batches_;
    HttpRequestId running_ = 0;
    // Set while a caller's callback runs, so that an enqueue from there doesn't start the next
    // request before the current one has been fully accounted for.
    bool delivering_ = false;
    // Replaced by cancelAll(): a callback that finds its epoch gone knows that the queue was
    // cleared, or destroyed, while it ran, and touches nothing more.
    std::shared_ptr<char> epoch_ = std::make_shared<char>();
};
