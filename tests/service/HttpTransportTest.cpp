#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QTcpServer>
#include <QThread>
#include <chrono>
#include <cstring>
#include <numeric>
#include <thread>

#include "service/JsonRequest.h"
#include "service/MultipartBody.h"
#include "service/PlainRequest.h"
#include "support/EventLoop.h"
#include "support/ScopedEnvironment.h"
#include "support/ServiceProcess.h"
#include "support/ServiceRecords.h"
#include "support/TestMedia.h"

namespace {

const QString kVersionPath = QStringLiteral("/downloads/kesto/version.json");

bool onMainThread() { return QThread::currentThread() == QCoreApplication::instance()->thread(); }

// A gigabyte read slowly in small pieces: a transfer that is still going when it is cancelled.
class EndlessBody : public BodySource {
public:
    quint64 size() const override { return quint64(1) << 30; }
    qint64 read(char* data, qint64 maxSize) override {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        const qint64 count = std::min<qint64>(maxSize, 64 * 1024);
        std::memset(data, 'x', size_t(count));
        return count;
    }
};

class HttpTransportTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(service.isRunning()) << service.errorString().toStdString();
    }

    QUrl url(const QString& path) const { return QUrl(service.baseUrl() + path); }

    HttpResponse fetch(HttpRequest request, HttpTransport::Callbacks callbacks = {}) {
        std::optional<HttpResponse> received;
        callbacks.finished = [&received](const HttpResponse& response) {
            EXPECT_TRUE(onMainThread());
            received = response;
        };
        transport.send(std::move(request), std::move(callbacks));
        EXPECT_TRUE(waitUntil([&] { return received.has_value(); }));
        return received.value_or(HttpResponse{});
    }

    ServiceProcess service;
    HttpTransport transport;
};

}  // namespace

// Refused statuses and content types are the client's test, against the service's faults.
TEST(JsonRequest, AnAnswerMustParseUnlessItIsBlankOrNoAnswerCame) {
    struct Case {
        HttpResponse response;
        bool accepted;
        QString error;
    };
    const QList<HttpResponse::Header> json = {{"Content-Type", "application/json; charset=utf-8"}};
    const Case cases[] = {
        {{200, json, R"({"root":{}})", {}}, true, {}},
        {{200, {{"content-type", "text/javascript"}}, " ", {}}, true, {}},
        {{200, json, "oops", {}}, false, "illegal value"},
        {{0, {}, {}, "Connection refused"}, false, "Connection refused"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.response.body.toStdString());
        const JsonRequest::Outcome outcome = JsonRequest::evaluate(c.response);
        EXPECT_EQ(outcome.accepted, c.accepted);
        EXPECT_EQ(outcome.error, c.error);
    }
}

TEST_F(HttpTransportTest, LoopbackRequestsBypassAProxyAndHandTheirValueToTheMainThread) {
    // Nothing listens on port 9: a request sent to this proxy would fail.
    const ScopedEnvironment proxy("http_proxy", "http://127.0.0.1:9");
    std::optional<QJsonValue> version;
    JsonRequest::start(transport, HttpRequest::get(url(kVersionPath)),
                       [&](const QJsonValue& value) {
                           EXPECT_TRUE(onMainThread());
                           version = value["version"];
                       },
                       {});
    ASSERT_TRUE(waitUntil([&] { return version.has_value(); }));
    EXPECT_EQ(version->toString(), "1.0.0");
}

TEST_F(HttpTransportTest, TransportFailuresCarryLibcurlsDescription) {
    QTcpServer closed;
    ASSERT_TRUE(closed.listen(QHostAddress::LocalHost));
    const quint16 port = closed.serverPort();
    closed.close();

    const HttpResponse response =
        fetch(HttpRequest::get(QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(port))));
    EXPECT_EQ(response.status, 0);
    EXPECT_TRUE(response.errorText.contains(QString::number(port)))
        << response.errorText.toStdString();
    EXPECT_EQ(PlainRequest::rejection(response), response.errorText);
}

TEST_F(HttpTransportTest, StreamedBodyArrivesByteExactWithProgressAddingUp) {
    // Every byte value, and lines that nearly are a delimiter, inside the file.
    QByteArray content = "\r\n--Boundary+0\r\n--\r\n\r\n--Boundary+0123456789ABCDE";
    for (int i = 0; i < 3 * 1024 * 1024; ++i) {
        content += char((i * 31 + i / 4093) & 0xff);
    }
    auto body = std::make_shared<MultipartBody>(
        QStringLiteral("Boundary+0123456789ABCDEF"),
        QList<FormFields::Field>{
            {"auth_token", "bob-fixed-token"}, {"folder_id", "103"}, {"output_format", "json"}},
        QList<MultipartBody::FilePart>{{"media_file", TestMedia::textFile("clip.mp4", content)}});
    const auto size = qint64(body->size());
    HttpRequest request("POST", url(QStringLiteral("/api/orvale/put_project_file/")));
    request.setHeader("Content-Type", body->contentType());
    request.setBody(std::move(body));

    std::vector<qint64> deltas;
    bool finished = false;
    HttpTransport::Callbacks callbacks;
    callbacks.uploadProgress = [&](qint64 bytesSent) {
        EXPECT_TRUE(onMainThread());
        EXPECT_FALSE(finished);
        deltas.push_back(bytesSent);
    };
    const HttpResponse response = fetch(std::move(request), std::move(callbacks));
    finished = true;
    settle(50);

    EXPECT_EQ(response.status, 200);
    EXPECT_TRUE(std::all_of(deltas.begin(), deltas.end(), [](qint64 d) { return d > 0; }));
    EXPECT_EQ(std::accumulate(deltas.begin(), deltas.end(), qint64{0}), size);
    const QJsonObject upload = service.uploads().value(0);
    EXPECT_TRUE(upload["length_ok"].toBool() && upload["framing_ok"].toBool());
    EXPECT_TRUE(ServiceRecords::storedContent(ServiceRecords::firstFile(upload)) == content);
    // A chunked body or a second Content-Length would be named here.
    EXPECT_EQ(service.requests().value(0)["problems"].toArray(), QJsonArray());
}

TEST_F(HttpTransportTest, CancelledRequestsReportNothingEvenWhenTheirAnswerIsOnItsWay) {
    int reports = 0;
    HttpTransport::Callbacks counting;
    counting.finished = [&](const HttpResponse&) { ++reports; };

    // Give the worker time to finish and post the answer, without letting the main thread
    // take it, then cancel: the answer already queued must not be reported.
    const HttpRequestId quick = transport.send(HttpRequest::get(url(kVersionPath)), counting);
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    transport.cancel(quick);
    EXPECT_FALSE(transport.isRunning(quick));

    settle();
    EXPECT_EQ(reports, 0);
}

TEST_F(HttpTransportTest, CancellingAStreamedUploadStopsReadingItsBody) {
    auto source = std::make_shared<EndlessBody>();
    const std::weak_ptr<EndlessBody> watched = source;
    HttpRequest request("POST", url(QStringLiteral("/discard")));
    request.setBody(std::move(source));

    HttpRequestId id = 0;
    qint64 sent = 0;
    bool finished = false;
    HttpTransport::Callbacks callbacks;
    callbacks.finished = [&](const HttpResponse&) { finished = true; };
    callbacks.uploadProgress = [&](qint64 bytesSent) {
        sent += bytesSent;
        transport.cancel(id);
        EXPECT_FALSE(transport.isRunning(id));
    };
    id = transport.send(std::move(request), std::move(callbacks));

    ASSERT_TRUE(waitUntil([&] { return sent > 0; }));
    const qint64 sentAtCancel = sent;
    // The worker lets go of the body once the transfer is gone.
    EXPECT_TRUE(waitUntil([&] { return watched.expired(); }, 3000));
    settle();
    EXPECT_FALSE(finished);
    EXPECT_EQ(sent, sentAtCancel);
}
