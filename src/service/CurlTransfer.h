#pragma once

#include <curl/curl.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>

#include "service/HttpRequest.h"
#include "service/HttpResponse.h"

// One request on a libcurl easy handle: sets the handle up from an HttpRequest, collects the
// answer and measures what was sent. Lives on the transport's worker thread only; the one thing
// shared with the main thread is the cancellation flag.
class CurlTransfer {
public:
    // Receives bytes of the body sent since the previous call.
    using ProgressSink = std::function<void(qint64 bytesSent)>;

    CurlTransfer(HttpRequestId id, HttpRequest request,
                 std::shared_ptr<const std::atomic_bool> cancelled, ProgressSink progress);
    CurlTransfer(const CurlTransfer&) = delete;
    CurlTransfer& operator=(const CurlTransfer&) = delete;
    ~CurlTransfer();

    HttpRequestId id() const { return id_; }
    CURL* handle() const { return easy_; }
    bool isCancelled() const { return cancelled_->load(std::memory_order_relaxed); }

    // Hands over the answer once curl is done with the handle, after reporting the bytes sent
    // that were still held back.
    HttpResponse finish(CURLcode result);

private:
    static constexpr long kUploadBufferSize = 2 * 1024 * 1024;  // libcurl's maximum
    static constexpr auto kProgressInterval = std::chrono::milliseconds(50);

    void configureConnection();
    void configureMethodAndBody();
    void configureHeaders();
    void configureCallbacks();

    static size_t onWrite(char* data, size_t size, size_t count, void* self);
    static size_t onHeader(char* data, size_t size, size_t count, void* self);
    static size_t onRead(char* data, size_t size, size_t count, void* self);
    static int onSeek(void* self, curl_off_t offset, int origin);
    static int onProgress(void* self, curl_off_t, curl_off_t, curl_off_t, curl_off_t uploaded);

    size_t readBody(char* data, size_t maxSize);
    void addHeaderLine(const QByteArray& line);
    void countUploaded(curl_off_t uploaded);
    void reportProgress();

    HttpRequestId id_;
    HttpRequest request_;
    std::shared_ptr<BodySource> source_;
    std::shared_ptr<const std::atomic_bool> cancelled_;
    ProgressSink progress_;

    CURL* easy_ = nullptr;
    curl_slist* headerList_ = nullptr;
    char errorBuffer_[CURL_ERROR_SIZE] = {};

    HttpResponse response_;
    QString bodyError_;
    quint64 bodyBytesRead_ = 0;
    curl_off_t uploadedCounted_ = 0;
    qint64 uploadedUnreported_ = 0;
    std::chrono::steady_clock::time_point lastReport_;
};
