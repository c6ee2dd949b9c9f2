#include "server/UploadReceiver.h"

#include "server/Exchange.h"
#include "server/UploadStore.h"

namespace orvale_service {

UploadReceiver::UploadReceiver(UploadStore& store, qint64 requestId, const std::string& boundary)
    : store_(store), requestId_(requestId), parser_(boundary, *this) {
    summary_.boundary = QString::fromStdString(boundary);
}

void UploadReceiver::consume(const char* data, std::size_t size) { parser_.feed(data, size); }

void UploadReceiver::beginPart(const MultipartParser::PartHeader& header) {
    UploadPart part;
    part.name = QString::fromStdString(header.name);
    part.isFile = header.fileName.has_value();
    part.fileName = QString::fromStdString(header.fileName.value_or(std::string()));
    part.contentType = QString::fromStdString(header.contentType);
    if (part.isFile) {
        part.storedPath = store_.pathFor(requestId_, summary_.parts.size(), part.fileName);
        file_.setFileName(part.storedPath);
        if (!file_.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
            part.storedPath.clear();
        }
    }
    text_.clear();
    summary_.parts.append(part);
}

void UploadReceiver::partData(const char* data, std::size_t size) {
    UploadPart& part = summary_.parts.last();
    part.size += static_cast<qint64>(size);
    if (part.isFile) {
        if (file_.isOpen()) {
            file_.write(data, static_cast<qint64>(size));
        }
    } else if (text_.size() < kTextLimit) {
        text_.append(data, std::min<qint64>(static_cast<qint64>(size), kTextLimit - text_.size()));
    }
}

void UploadReceiver::endPart(bool complete) {
    UploadPart& part = summary_.parts.last();
    part.complete = complete;
    if (part.isFile) {
        file_.close();
    } else {
        part.value = QString::fromUtf8(text_);
    }
}

void UploadReceiver::finish(Exchange& exchange) {
    parser_.finish();
    summary_.framingOk = parser_.complete();
    summary_.framingError = QString::fromStdString(parser_.error().value_or(std::string()));
    judgeLength(exchange);
    exchange.upload = summary_;
}

void UploadReceiver::judgeLength(const Exchange& exchange) {
    summary_.lengthOk = false;
    const qint64 received = exchange.receivedLength;
    if (!exchange.declaredLength) {
        summary_.lengthError = QStringLiteral("no Content-Length header");
    } else if (!exchange.bodyComplete || received < *exchange.declaredLength) {
        summary_.lengthError = QStringLiteral("the body ended after %1 of the %2 bytes announced")
                                   .arg(received)
                                   .arg(*exchange.declaredLength);
    } else if (parser_.truncated()) {
        summary_.lengthError = QStringLiteral("Content-Length %1 ends before the closing boundary")
                                   .arg(*exchange.declaredLength);
    } else if (!parser_.complete()) {
        summary_.lengthError = QStringLiteral("not judged: the framing broke first");
    } else if (parser_.trailingBytes() > 0) {
        summary_.lengthError =
            QStringLiteral("Content-Length %1 counts %2 bytes after the closing boundary")
                .arg(*exchange.declaredLength)
                .arg(parser_.trailingBytes());
    } else {
        summary_.lengthOk = true;
    }
}

}  // namespace orvale_service
