#include "server/RequestPipeline.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <chrono>
#include <cstdio>
#include <thread>

#include "server/ConnectionDropper.h"
#include "server/JsonLinesFile.h"
#include "server/MultipartParser.h"
#include "server/UploadReceiver.h"
#include "server/UploadStore.h"

namespace orvale_service {
namespace {

// "content-length" and "CONTENT-LENGTH" are one header; record it one way.
QString canonicalName(const std::string& name) {
    QString result = QString::fromStdString(name).toLower();
    for (qsizetype i = 0; i < result.size(); ++i) {
        if (i == 0 || result.at(i - 1) == QLatin1Char('-')) {
            result[i] = result.at(i).toUpper();
        }
    }
    return result;
}

// The HTTP library files the connection's addresses among the headers; the client sent none.
bool isConnectionAddress(const std::string& name) {
    return name == "REMOTE_ADDR" || name == "REMOTE_PORT" || name == "LOCAL_ADDR" ||
           name == "LOCAL_PORT";
}

QJsonObject headerObject(const httplib::Request& request, QString* contentType) {
    QJsonObject headers;
    for (const auto& [rawName, rawValue] : request.headers) {
        if (isConnectionAddress(rawName)) {
            continue;
        }
        QString name = canonicalName(rawName);
        const QString value = QString::fromStdString(rawValue);
        if (name == QLatin1String(RequestPipeline::kStashedTypeHeader)) {
            name = QStringLiteral("Content-Type");
        }
        if (name == QLatin1String("Content-Type")) {
            *contentType = value;
        }
        const QJsonValue earlier = headers.value(name);
        if (earlier.isUndefined()) {
            headers.insert(name, value);
        } else {
            QJsonArray values = earlier.isArray() ? earlier.toArray() : QJsonArray{earlier};
            values.append(value);
            headers.insert(name, values);
        }
    }
    return headers;
}

}  // namespace

RequestPipeline::RequestPipeline(FaultPlan& faults, UploadStore& uploads, JsonLinesFile& record,
                                 bool verbose)
    : faults_(faults), uploads_(uploads), record_(record), verbose_(verbose) {}

void RequestPipeline::run(const Endpoint& endpoint, const httplib::Request& request,
                          httplib::Response& response, const httplib::ContentReader* reader) {
    Exchange exchange = begin(endpoint.name, request);
    FaultEffect effect = faults_.take(endpoint.name, QString());
    const bool multipart = endpoint.body == BodyKind::Multipart;
    if (exchange.method != endpoint.method) {
        if (reader) {
            DiscardingConsumer drain;
            readBody(*reader, drain, exchange, std::nullopt);
        }
        exchange.problems
            << QStringLiteral("%1 instead of %2").arg(exchange.method, endpoint.method);
        exchange.refuse(405, QStringLiteral("Use %1 for this resource.").arg(endpoint.method));
    } else {
        if (reader) {
            const auto consumer = consumerFor(endpoint, exchange);
            readBody(*reader, *consumer, exchange, effect.dropAfter);
        }
        if (effect.dropAfter) {
            exchange.faults << effect.applied;
            std::this_thread::sleep_for(std::chrono::milliseconds(effect.delayMs));
            dropConnection(exchange, request, multipart);
            return;
        }
        if (endpoint.section && !endpoint.section(exchange).isEmpty()) {
            effect.merge(faults_.take(endpoint.name, endpoint.section(exchange)));
        }
        endpoint.answer(exchange);
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(effect.delayMs));
    effect.applyTo(exchange);
    keep(exchange, multipart);
    respond(exchange, response);
}

void RequestPipeline::unknown(const httplib::Request& request, httplib::Response& response,
                              const httplib::ContentReader* reader) {
    Exchange exchange = begin(QStringLiteral("unknown"), request);
    if (reader) {
        DiscardingConsumer drain;
        readBody(*reader, drain, exchange, std::nullopt);
    }
    exchange.problems
        << QStringLiteral("no endpoint serves %1 %2").arg(exchange.method, exchange.path);
    exchange.refuse(404, QStringLiteral("No such resource."));
    keep(exchange, false);
    respond(exchange, response);
}

Exchange RequestPipeline::begin(const QString& endpoint, const httplib::Request& request) {
    Exchange exchange;
    exchange.id = nextId_++;
    exchange.time = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);
    exchange.endpoint = endpoint;
    exchange.method = QString::fromStdString(request.method);
    exchange.path = QString::fromStdString(request.path);
    exchange.prefix =
        request.matches.size() > 1 ? QString::fromStdString(request.matches[1]) : QString();
    exchange.headers = headerObject(request, &exchange.contentType);
    const size_t lengths = request.get_header_value_count("Content-Length");
    if (lengths > 1) {
        exchange.problems << QStringLiteral("Content-Length is sent %1 times").arg(lengths);
    }
    if (lengths > 0) {
        bool ok = false;
        const qint64 length =
            QString::fromStdString(request.get_header_value("Content-Length")).toLongLong(&ok);
        exchange.declaredLength = ok ? std::optional<qint64>(length) : std::nullopt;
    }
    if (request.has_header("Transfer-Encoding")) {
        exchange.problems << QStringLiteral("a chunked body instead of one with Content-Length");
    }
    return exchange;
}

std::unique_ptr<BodyConsumer> RequestPipeline::consumerFor(const Endpoint& endpoint,
                                                           Exchange& exchange) {
    const auto boundary =
        MultipartParser::boundaryFromContentType(exchange.contentType.toStdString());
    if (endpoint.body == BodyKind::Multipart) {
        if (boundary) {
            return std::make_unique<UploadReceiver>(uploads_, exchange.id, *boundary);
        }
        exchange.problems << QStringLiteral(
                                 "Content-Type \"%1\" is not multipart/form-data "
                                 "with a boundary")
                                 .arg(exchange.contentType);
        return std::make_unique<DiscardingConsumer>();
    }
    if (boundary) {
        exchange.problems << QStringLiteral("a multipart body where a form is expected");
    }
    return std::make_unique<FormCollector>(endpoint.knownKeys, endpoint.freeTextKeys);
}

void RequestPipeline::readBody(const httplib::ContentReader& reader, BodyConsumer& consumer,
                               Exchange& exchange, std::optional<qint64> dropAfter) {
    if (dropAfter && *dropAfter == 0) {
        exchange.bodyComplete = exchange.declaredLength.value_or(0) == 0;
    } else {
        exchange.bodyComplete = reader([&](const char* data, size_t size) {
            qint64 taken = static_cast<qint64>(size);
            if (dropAfter) {
                taken = std::min(taken, *dropAfter - exchange.receivedLength);
            }
            consumer.consume(data, static_cast<size_t>(taken));
            exchange.receivedLength += taken;
            return !dropAfter || exchange.receivedLength < *dropAfter;
        });
    }
    consumer.finish(exchange);
}

void RequestPipeline::dropConnection(Exchange& exchange, const httplib::Request& request,
                                     bool multipart) {
    exchange.dropped = true;
    keep(exchange, multipart);
    if (!ConnectionDropper::drop(request.remote_addr, request.remote_port, request.local_port)) {
        std::fprintf(stderr, "orvale-service: could not find the connection of request %lld\n",
                     static_cast<long long>(exchange.id));
    }
}

void RequestPipeline::respond(Exchange& exchange, httplib::Response& response) const {
    if (exchange.answer.isObject()) {
        exchange.body = QJsonDocument(exchange.answer.toObject()).toJson(QJsonDocument::Compact);
    } else if (exchange.answer.isArray()) {
        exchange.body = QJsonDocument(exchange.answer.toArray()).toJson(QJsonDocument::Compact);
    }
    response.status = exchange.status;
    response.set_content(std::string(exchange.body.constData(), exchange.body.size()),
                         exchange.answerType.toStdString());
    // Bytes the Content-Length did not count may still be on the way; they are not a request.
    if (!exchange.bodyComplete || (exchange.upload && !exchange.upload->lengthOk)) {
        response.set_header("Connection", "close");
    }
}

void RequestPipeline::keep(const Exchange& exchange, bool multipart) {
    record_.append(exchange.toRecord());
    if (multipart) {
        uploads_.appendIndex(exchange);
    }
    if (verbose_) {
        const QString status =
            exchange.dropped ? QStringLiteral("dropped") : QString::number(exchange.status);
        const QString line = QStringLiteral("#%1 %2 %3 -> %4 %5 %6\n")
                                 .arg(exchange.id)
                                 .arg(exchange.method, exchange.path, status, exchange.endpoint,
                                      exchange.problems.join(QLatin1String("; ")));
        std::fputs(line.toLocal8Bit().constData(), stderr);
    }
}

}  // namespace orvale_service
