#pragma once

#include <QObject>
#include <atomic>
#include <functional>
#include <memory>
#include <unordered_map>

#include "service/HttpRequest.h"
#include "service/HttpResponse.h"

class CurlWorker;

// Asynchronous HTTP for the whole application, on libcurl. Transfers run on the transport's own
// worker thread, so a large upload never waits for the main thread; every report is handed back
// to the thread the transport lives on (the main thread), which is also the only thread that
// may call it.
//
// Each request reports its end exactly once through `finished`, with an answer of any status
// or a transport failure, unless it is cancelled: after cancel() returns, that request reports
// nothing at all, not even an earlier answer still on its way. Callers that want to tell the user
// about a stop do so themselves.
class HttpTransport : public QObject {
public:
    struct Callbacks {
        std::function<void(const HttpResponse& response)> finished;
        // Bytes of the request body sent since the previous report. The reports of one request
        // add up to the bytes sent, and all of them arrive before `finished`.
        std::function<void(qint64 bytesSent)> uploadProgress;
    };

    explicit HttpTransport(QObject* parent = nullptr);
    // Drops all requests still running without reporting them.
    ~HttpTransport() override;

    HttpRequestId send(HttpRequest request, Callbacks callbacks);
    // Unknown or finished requests are ignored.
    void cancel(HttpRequestId id);
    bool isRunning(HttpRequestId id) const { return pending_.contains(id); }

private:
    struct Pending {
        Callbacks callbacks;
        std::shared_ptr<std::atomic_bool> cancelled;
    };

    void deliverProgress(HttpRequestId id, qint64 bytesSent);
    void deliverFinished(HttpRequestId id, const HttpResponse& response);

    std::unordered_map<HttpRequestId, Pending> pending_;
    HttpRequestId nextId_ = 1;
    std::unique_ptr<CurlWorker> worker_;
};
