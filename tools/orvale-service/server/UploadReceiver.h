#pragma once

#include <QFile>
#include <string>

#include "server/BodyConsumer.h"
#include "server/MultipartParser.h"
#include "server/UploadSummary.h"

namespace orvale_service {

class UploadStore;

// Streams a multipart body to disk: file parts go straight into files of the upload folder, text
// parts are kept (they are small), and at the end the framing and the Content-Length are judged.
class UploadReceiver : public BodyConsumer, private MultipartParser::Sink {
public:
    UploadReceiver(UploadStore& store, qint64 requestId, const std::string& boundary);

    void consume(const char* data, std::size_t size) override;
    void finish(Exchange& exchange) override;

private:
    static constexpr qint64 kTextLimit = 1024 * 1024;

    void beginPart(const MultipartParser::PartHeader& header) override;
    void partData(const char* data, std::size_t size) override;
    void endPart(bool complete) override;
    void judgeLength(const Exchange& exchange);

    UploadStore& store_;
    qint64 requestId_;
    MultipartParser parser_;
    UploadSummary summary_;
    QFile file_;
    QByteArray text_;
};

}  // namespace orvale_service
