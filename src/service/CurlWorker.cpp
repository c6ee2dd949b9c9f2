#include "service/CurlWorker.h"

#include "platform/Log.h"

namespace {

void initCurlOnce() {
    static std::once_flag once;
    std::call_once(once, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
}

}  // namespace

CurlWorker::CurlWorker(Events events) : events_(std::move(events)) {
    initCurlOnce();
    multi_ = curl_multi_init();
    thread_ = std::thread([this] { run(); });
}

CurlWorker::~CurlWorker() {
    {
        std::lock_guard lock(mutex_);
        stopping_ = true;
        curl_multi_wakeup(multi_);
    }
    thread_.join();
    curl_multi_cleanup(multi_);
}

void CurlWorker::start(HttpRequestId id, HttpRequest request,
                       std::shared_ptr<const std::atomic_bool> cancelled) {
    std::lock_guard lock(mutex_);
    incoming_.push_back({id, std::move(request), std::move(cancelled)});
    curl_multi_wakeup(multi_);
}

void CurlWorker::wake() {
    std::lock_guard lock(mutex_);
    curl_multi_wakeup(multi_);
}

void CurlWorker::run() {
    while (takeIncoming()) {
        dropCancelled();
        int running = 0;
        curl_multi_perform(multi_, &running);
        collectFinished();
        curl_multi_poll(multi_, nullptr, 0, kPollTimeoutMs, nullptr);
    }
    while (!transfers_.empty()) {
        remove(transfers_.begin()->first);
    }
}

bool CurlWorker::takeIncoming() {
    std::vector<Incoming> taken;
    {
        std::lock_guard lock(mutex_);
        if (stopping_) {
            return false;
        }
        taken.swap(incoming_);
    }
    for (Incoming& item : taken) {
        if (item.cancelled->load()) {
            continue;
        }
        LOG_VERBOSE("{} {}", item.request.method(), item.request.url());
        const HttpRequestId id = item.id;
        auto transfer = std::make_unique<CurlTransfer>(
            id, std::move(item.request), std::move(item.cancelled),
            [this, id](qint64 bytesSent) { events_.uploadProgress(id, bytesSent); });
        CURL* handle = transfer->handle();
        transfers_.emplace(handle, std::move(transfer));
        curl_multi_add_handle(multi_, handle);
    }
    return true;
}

void CurlWorker::dropCancelled() {
    std::vector<CURL*> cancelled;
    for (const auto& [handle, transfer] : transfers_) {
        if (transfer->isCancelled()) {
            cancelled.push_back(handle);
        }
    }
    for (CURL* handle : cancelled) {
        LOG_VERBOSE("Cancelled request {}", transfers_.at(handle)->id());
        remove(handle);
    }
}

void CurlWorker::collectFinished() {
    int queued = 0;
    while (CURLMsg* message = curl_multi_info_read(multi_, &queued)) {
        if (message->msg != CURLMSG_DONE) {
            continue;
        }
        CURL* handle = message->easy_handle;
        const CURLcode result = message->data.result;
        CurlTransfer& transfer = *transfers_.at(handle);
        if (!transfer.isCancelled()) {
            HttpResponse response = transfer.finish(result);
            LOG_VERBOSE("Request {} ended: status {} {}", transfer.id(), response.status,
                        response.errorText);
            events_.finished(transfer.id(), std::move(response));
        }
        remove(handle);
    }
}

void CurlWorker::remove(CURL* handle) {
    curl_multi_remove_handle(multi_, handle);
    transfers_.erase(handle);
}
