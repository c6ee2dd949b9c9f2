#include "service/CurlTransfer.h"

#include <QHostAddress>
#include <algorithm>

namespace {

constexpr long kConnectTimeoutSeconds = 30;
// Ends a transfer that moved no byte for this long. Generous, because the service may think a
// while about a large upload before it answers.
constexpr long kStallTimeoutSeconds = 300;
constexpr long kMaxRedirects = 10;

bool isLoopback(const QString& host) {
    return host.compare(QStringLiteral("localhost"), Qt::CaseInsensitive) == 0 ||
           QHostAddress(host).isLoopback();
}

}  // namespace

CurlTransfer::CurlTransfer(HttpRequestId id, HttpRequest request,
                           std::shared_ptr<const std::atomic_bool> cancelled, ProgressSink progress)
    : id_(id),
      request_(std::move(request)),
      source_(request_.bodySource()),
      cancelled_(std::move(cancelled)),
      progress_(std::move(progress)),
      easy_(curl_easy_init()),
      lastReport_(std::chrono::steady_clock::now()) {
    configureConnection();
    configureMethodAndBody();
    configureHeaders();
    configureCallbacks();
}

CurlTransfer::~CurlTransfer() {
    curl_easy_cleanup(easy_);
    curl_slist_free_all(headerList_);
}

void CurlTransfer::configureConnection() {
    curl_easy_setopt(easy_, CURLOPT_URL, request_.url().toEncoded().constData());
    curl_easy_setopt(easy_, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(easy_, CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(easy_, CURLOPT_FOLLOWLOCATION, 1L);
    curl_easy_setopt(easy_, CURLOPT_MAXREDIRS, kMaxRedirects);
    curl_easy_setopt(easy_, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(easy_, CURLOPT_ACCEPT_ENCODING, "");
    curl_easy_setopt(easy_, CURLOPT_CONNECTTIMEOUT, kConnectTimeoutSeconds);
    curl_easy_setopt(easy_, CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl_easy_setopt(easy_, CURLOPT_LOW_SPEED_TIME, kStallTimeoutSeconds);
    curl_easy_setopt(easy_, CURLOPT_ERRORBUFFER, errorBuffer_);
    if (isLoopback(request_.url().host())) {
        // libcurl would send even these through a proxy named in http_proxy; none can reach
        // this machine's own services for us.
        curl_easy_setopt(easy_, CURLOPT_PROXY, "");
    }
}

void CurlTransfer::configureMethodAndBody() {
    const QByteArray& method = request_.method();
    if (!request_.hasBody() && method == "GET") {
        curl_easy_setopt(easy_, CURLOPT_HTTPGET, 1L);
        return;
    }
    if (!request_.hasBody() && method == "HEAD") {
        curl_easy_setopt(easy_, CURLOPT_NOBODY, 1L);
        return;
    }
    curl_easy_setopt(easy_, CURLOPT_POST, 1L);
    if (method != "POST") {
        curl_easy_setopt(easy_, CURLOPT_CUSTOMREQUEST, method.constData());
    }
    if (source_) {
        // Large buffers matter here: with libcurl's default of 64 KiB, uploads on fast links
        // spend their time in callbacks instead of on the wire.
        curl_easy_setopt(easy_, CURLOPT_UPLOAD_BUFFERSIZE, kUploadBufferSize);
        curl_easy_setopt(easy_, CURLOPT_POSTFIELDSIZE_LARGE,
                         static_cast<curl_off_t>(source_->size()));
        curl_easy_setopt(easy_, CURLOPT_READFUNCTION, &CurlTransfer::onRead);
        curl_easy_setopt(easy_, CURLOPT_READDATA, this);
        curl_easy_setopt(easy_, CURLOPT_SEEKFUNCTION, &CurlTransfer::onSeek);
        curl_easy_setopt(easy_, CURLOPT_SEEKDATA, this);
        return;
    }
    const QByteArray* bytes = request_.bodyBytes();
    const char* data = bytes != nullptr ? bytes->constData() : "";
    curl_easy_setopt(easy_, CURLOPT_POSTFIELDSIZE_LARGE,
                     static_cast<curl_off_t>(bytes != nullptr ? bytes->size() : 0));
    curl_easy_setopt(easy_, CURLOPT_POSTFIELDS, data);
}

void CurlTransfer::configureHeaders() {
    QList<QByteArray> lines;
    for (const auto& [name, value] : request_.headers()) {
        if (name.compare("Content-Length", Qt::CaseInsensitive) == 0) {
            continue;
        }
        // "Name:" would tell libcurl to drop the header; "Name;" sends it empty.
        lines << (value.isEmpty() ? name + ';' : name + ": " + value);
    }
    if (request_.hasBody() && !request_.hasHeader("Content-Type")) {
        lines << "Content-Type: " + (source_ ? QByteArray("application/octet-stream")
                                             : HttpRequest::kFormContentType);
    }
    if (!request_.hasHeader("Expect")) {
        // No "100-continue" round trip: it costs a wait on servers that ignore it.
        lines << "Expect:";
    }
    for (const QByteArray& line : std::as_const(lines)) {
        headerList_ = curl_slist_append(headerList_, line.constData());
    }
    curl_easy_setopt(easy_, CURLOPT_HTTPHEADER, headerList_);
}

void CurlTransfer::configureCallbacks() {
    curl_easy_setopt(easy_, CURLOPT_PRIVATE, this);
    curl_easy_setopt(easy_, CURLOPT_WRITEFUNCTION, &CurlTransfer::onWrite);
    curl_easy_setopt(easy_, CURLOPT_WRITEDATA, this);
    curl_easy_setopt(easy_, CURLOPT_HEADERFUNCTION, &CurlTransfer::onHeader);
    curl_easy_setopt(easy_, CURLOPT_HEADERDATA, this);
    curl_easy_setopt(easy_, CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(easy_, CURLOPT_XFERINFOFUNCTION, &CurlTransfer::onProgress);
    curl_easy_setopt(easy_, CURLOPT_XFERINFODATA, this);
}

HttpResponse CurlTransfer::finish(CURLcode result) {
    curl_off_t uploaded = 0;
    curl_easy_getinfo(easy_, CURLINFO_SIZE_UPLOAD_T, &uploaded);
    countUploaded(uploaded);
    reportProgress();

    long status = 0;
    curl_easy_getinfo(easy_, CURLINFO_RESPONSE_CODE, &status);
    response_.status = static_cast<int>(status);
    if (result != CURLE_OK) {
        if (!bodyError_.isEmpty()) {
            response_.errorText = bodyError_;
        } else if (errorBuffer_[0] != '\0') {
            response_.errorText = QString::fromUtf8(errorBuffer_);
        } else {
            response_.errorText = QString::fromUtf8(curl_easy_strerror(result));
        }
    }
    return std::move(response_);
}

size_t CurlTransfer::onWrite(char* data, size_t size, size_t count, void* self) {
    auto* transfer = static_cast<CurlTransfer*>(self);
    transfer->response_.body.append(data, static_cast<qsizetype>(size * count));
    return size * count;
}

size_t CurlTransfer::onHeader(char* data, size_t size, size_t count, void* self) {
    static_cast<CurlTransfer*>(self)->addHeaderLine(
        QByteArray(data, static_cast<qsizetype>(size * count)));
    return size * count;
}

void CurlTransfer::addHeaderLine(const QByteArray& line) {
    if (line.startsWith("HTTP/")) {
        // A new status line: what came before belonged to an interim answer or a redirect.
        response_.headers.clear();
        return;
    }
    const qsizetype colon = line.indexOf(':');
    if (colon > 0) {
        response_.headers.append({line.left(colon).trimmed(), line.mid(colon + 1).trimmed()});
    }
}

size_t CurlTransfer::onRead(char* data, size_t size, size_t count, void* self) {
    return static_cast<CurlTransfer*>(self)->readBody(data, size * count);
}

size_t CurlTransfer::readBody(char* data, size_t maxSize) {
    if (isCancelled()) {
        return CURL_READFUNC_ABORT;
    }
    const quint64 remaining = source_->size() - bodyBytesRead_;
    if (remaining == 0) {
        return 0;
    }
    const qint64 wanted = static_cast<qint64>(std::min<quint64>(maxSize, remaining));
    const qint64 got = source_->read(data, wanted);
    if (got < 0) {
        bodyError_ = source_->errorString();
        if (bodyError_.isEmpty()) {
            bodyError_ = QStringLiteral("The request body could not be read");
        }
        return CURL_READFUNC_ABORT;
    }
    if (got == 0) {
        bodyError_ = QStringLiteral("The request body ended %1 bytes early").arg(remaining);
        return CURL_READFUNC_ABORT;
    }
    bodyBytesRead_ += static_cast<quint64>(got);
    return static_cast<size_t>(got);
}

int CurlTransfer::onSeek(void* self, curl_off_t offset, int origin) {
    auto* transfer = static_cast<CurlTransfer*>(self);
    if (origin != SEEK_SET || offset != 0 || !transfer->source_->rewind()) {
        return CURL_SEEKFUNC_CANTSEEK;
    }
    transfer->bodyBytesRead_ = 0;
    return CURL_SEEKFUNC_OK;
}

int CurlTransfer::onProgress(void* self, curl_off_t, curl_off_t, curl_off_t, curl_off_t uploaded) {
    auto* transfer = static_cast<CurlTransfer*>(self);
    if (transfer->isCancelled()) {
        return 1;  // makes libcurl abort the transfer
    }
    transfer->countUploaded(uploaded);
    if (std::chrono::steady_clock::now() - transfer->lastReport_ >= kProgressInterval) {
        transfer->reportProgress();
    }
    return 0;
}

void CurlTransfer::countUploaded(curl_off_t uploaded) {
    // The counter starts over when a body is sent again (after a rewind); only growth counts.
    if (uploaded > uploadedCounted_) {
        uploadedUnreported_ += uploaded - uploadedCounted_;
    }
    uploadedCounted_ = uploaded;
}

void CurlTransfer::reportProgress() {
    lastReport_ = std::chrono::steady_clock::now();
    if (uploadedUnreported_ > 0 && progress_) {
        progress_(uploadedUnreported_);
    }
    uploadedUnreported_ = 0;
}
