#pragma once

#include <curl/curl.h>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <unordered_map>
#include <vector>

#include "service/CurlTransfer.h"
#include "service/HttpRequest.h"
#include "service/HttpResponse.h"

// The thread that runs every transfer of one transport on a libcurl multi handle. Requests come
// in through a locked hand-off list and a wake-up of the multi handle; results go out through
// the events, which are called on the worker thread. A transfer whose cancellation flag is set
// is dropped without any further event.
class CurlWorker {
public:
    struct Events {
        std::function<void(HttpRequestId, qint64 bytesSent)> uploadProgress;
        std::function<void(HttpRequestId, HttpResponse)> finished;
    };

    explicit CurlWorker(Events events);
    CurlWorker(const CurlWorker&) = delete;
    CurlWorker& operator=(const CurlWorker&) = delete;
    // Stops the thread; transfers still running are dropped without events.
    ~CurlWorker();

    // Thread-safe.
    void start(HttpRequestId id, HttpRequest request,
               std::shared_ptr<const std::atomic_bool> cancelled);
    // Thread-safe: makes the worker look at cancellation flags now rather than at its next turn.
    void wake();

private:
    struct Incoming {
        HttpRequestId id;
        HttpRequest request;
        std::shared_ptr<const std::atomic_bool> cancelled;
    };

    static constexpr int kPollTimeoutMs = 1000;

    void run();
    bool takeIncoming();
    void dropCancelled();
    void collectFinished();
    void remove(CURL* handle);

    Events events_;
    CURLM* multi_;
    std::mutex mutex_;
    std::vector<Incoming> incoming_;                                      // guarded by mutex_
    bool stopping_ = false;                                               // guarded by mutex_
    std::unordered_map<CURL*, std::unique_ptr<CurlTransfer>> transfers_;  // worker thread only
    std::thread thread_;
};
