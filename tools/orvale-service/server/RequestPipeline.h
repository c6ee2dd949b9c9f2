#pragma once

#include <httplib.h>

#include <atomic>
#include <memory>

#include "server/BodyConsumer.h"
#include "server/Endpoint.h"
#include "server/Exchange.h"
#include "server/FaultPlan.h"

namespace orvale_service {

class JsonLinesFile;
class UploadStore;

// The path every request takes: take its headers, read its body as the endpoint wants it (or
// drop the connection part way, when a fault says so), let the endpoint answer, apply the faults,
// record the exchange, and only then hand the answer to the HTTP library.
class RequestPipeline {
public:
    // The HTTP library would parse multipart bodies itself; the original content type is kept in
    // this header instead, so the body reaches us byte for byte.
    static constexpr const char* kStashedTypeHeader = "X-Orvale-Service-Multipart-Type";

    RequestPipeline(FaultPlan& faults, UploadStore& uploads, JsonLinesFile& record, bool verbose);

    void run(const Endpoint& endpoint, const httplib::Request& request, httplib::Response& response,
             const httplib::ContentReader* reader);
    // Requests to paths no endpoint serves.
    void unknown(const httplib::Request& request, httplib::Response& response,
                 const httplib::ContentReader* reader);

private:
    Exchange begin(const QString& endpoint, const httplib::Request& request);
    std::unique_ptr<BodyConsumer> consumerFor(const Endpoint& endpoint, Exchange& exchange);
    void readBody(const httplib::ContentReader& reader, BodyConsumer& consumer, Exchange& exchange,
                  std::optional<qint64> dropAfter);
    void dropConnection(Exchange& exchange, const httplib::Request& request, bool multipart);
    void respond(Exchange& exchange, httplib::Response& response) const;
    void keep(const Exchange& exchange, bool multipart);

    FaultPlan& faults_;
    UploadStore& uploads_;
    JsonLinesFile& record_;
    bool verbose_;
    std::atomic<qint64> nextId_{1};
};

}  // namespace orvale_service
