#include "service/HttpBatchQueue.h"

#include <utility>

HttpBatchQueue::HttpBatchQueue(HttpTransport& transport) : transport_(transport) {}

HttpBatchQueue::~HttpBatchQueue() { cancelAll(); }

void HttpBatchQueue::enqueue(HttpRequest request, HttpTransport::Callbacks callbacks) {
    QList<Item> items;
    items.append({std::move(request), std::move(callbacks)});
    enqueueBatch(std::move(items));
}

void HttpBatchQueue::enqueueBatch(QList<Item> items, BatchCallbacks callbacks) {
    Batch batch;
    batch.total = static_cast<int>(items.size());
    batch.callbacks = std::move(callbacks);
    for (Item& item : items) {
        batch.waiting.push_back(std::move(item));
    }
    batches_.push_back(std::move(batch));
    startNext();
}

void HttpBatchQueue::cancelAll() {
    epoch_ = std::make_shared<char>();
    delivering_ = false;
    batches_.clear();
    if (running_ != 0) {
        transport_.cancel(std::exchange(running_, 0));
    }
}

void HttpBatchQueue::startNext() {
    while (!delivering_ && running_ == 0 && !batches_.empty()) {
        Batch& batch = batches_.front();
        if (!batch.waiting.empty()) {
            startFirstWaiting(batch);
            continue;
        }
        // Only an empty batch reaches the front with nothing waiting and nothing running.
        const auto completed = std::move(batch.callbacks.completed);
        batches_.pop_front();
        if (completed && !deliver(completed)) {
            return;
        }
    }
}

void HttpBatchQueue::startFirstWaiting(Batch& batch) {
    Item item = std::move(batch.waiting.front());
    batch.waiting.pop_front();
    item.callbacks.finished = [this, finished = std::move(item.callbacks.finished)](
                                  const HttpResponse& response) { onFinished(finished, response); };
    running_ = transport_.send(std::move(item.request), std::move(item.callbacks));
}

void HttpBatchQueue::onFinished(const Finished& finished, const HttpResponse& response) {
    running_ = 0;
    Batch& batch = batches_.front();
    const int done = ++batch.finished;
    const int total = batch.total;
    const auto progress = batch.callbacks.progress;
    std::function<void()> completed;
    if (done == total) {
        completed = std::move(batch.callbacks.completed);
        batches_.pop_front();
    }
    if (finished && !deliver([&] { finished(response); })) {
        return;
    }
    if (progress && !deliver([&] { progress(done, total); })) {
        return;
    }
    if (completed && !deliver(completed)) {
        return;
    }
    startNext();
}

bool HttpBatchQueue::deliver(const std::function<void()>& callback) {
    const std::weak_ptr<char> epoch = epoch_;
    delivering_ = true;
    callback();
    if (epoch.expired()) {
        return false;
    }
    delivering_ = false;
    return true;
}
