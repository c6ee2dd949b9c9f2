#include "service/HttpTransport.h"

#include <QThread>

#include "service/CurlWorker.h"

HttpTransport::HttpTransport(QObject* parent) : QObject(parent) {
    // Called on the worker thread: post to this object, whose thread runs the handlers. Events
    // still queued when the transport goes away are discarded with it.
    CurlWorker::Events events;
    events.uploadProgress = [this](HttpRequestId id, qint64 bytesSent) {
        QMetaObject::invokeMethod(
            this, [this, id, bytesSent] { deliverProgress(id, bytesSent); }, Qt::QueuedConnection);
    };
    events.finished = [this](HttpRequestId id, HttpResponse response) {
        QMetaObject::invokeMethod(
            this, [this, id, response = std::move(response)] { deliverFinished(id, response); },
            Qt::QueuedConnection);
    };
    worker_ = std::make_unique<CurlWorker>(std::move(events));
}

HttpTransport::~HttpTransport() { worker_.reset(); }

HttpRequestId HttpTransport::send(HttpRequest request, Callbacks callbacks) {
    Q_ASSERT(QThread::currentThread() == thread());
    const HttpRequestId id = nextId_++;
    auto cancelled = std::make_shared<std::atomic_bool>(false);
    pending_.emplace(id, Pending{std::move(callbacks), cancelled});
    worker_->start(id, std::move(request), std::move(cancelled));
    return id;
}

void HttpTransport::cancel(HttpRequestId id) {
    Q_ASSERT(QThread::currentThread() == thread());
    auto found = pending_.find(id);
    if (found == pending_.end()) {
        return;
    }
    found->second.cancelled->store(true);
    pending_.erase(found);
    worker_->wake();
}

void HttpTransport::deliverProgress(HttpRequestId id, qint64 bytesSent) {
    auto found = pending_.find(id);
    if (found == pending_.end() || !found->second.callbacks.uploadProgress) {
        return;
    }
    // A copy, because the handler may cancel its own request and so erase the original.
    const auto handler = found->second.callbacks.uploadProgress;
    handler(bytesSent);
}

void HttpTransport::deliverFinished(HttpRequestId id, const HttpResponse& response) {
    auto node = pending_.extract(id);
    if (node.empty() || !node.mapped().callbacks.finished) {
        return;
    }
    node.mapped().callbacks.finished(response);
}
