#include <gtest/gtest.h>

#include <QJsonObject>
#include <QTcpServer>
#include <chrono>
#include <numeric>
#include <thread>

#include "service/HttpServerFixture.h"
#include "service/JsonRequest.h"
#include "service/PatternBodySource.h"
#include "service/PlainRequest.h"
#include "support/EventLoop.h"
#include "support/ScopedEnvironment.h"

using HttpTransportTest = HttpServerFixture;

TEST_F(HttpTransportTest, JsonAnswersNeedASuccessStatusAJsonTypeAndJsonText) {
    struct Case {
        const char* path;
        bool accepted;
        QString error;
    };
    const Case cases[] = {
        {"/json", true, {}},
        {"/space", true, {}},
        {"/status/404", false, "Expected status code in (200-299), got 404"},
        {"/status/500", false, "Expected status code in (200-299), got 500"},
        {"/html", false,
         "Expected content type (application/json, text/json, text/javascript), got text/html"},
        {"/not-json", false, "illegal value"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.path);
        const HttpResponse response = fetch(HttpRequest::get(server.url(c.path)));
        const JsonRequest::Outcome outcome = JsonRequest::evaluate(response);
        EXPECT_EQ(outcome.accepted, c.accepted);
        EXPECT_EQ(outcome.error, c.error);
    }
}

TEST_F(HttpTransportTest, LoopbackRequestsBypassAProxyNamedInTheEnvironment) {
    // Nothing listens on port 9: a request sent to this proxy would fail.
    const ScopedEnvironment proxy("http_proxy", "http://127.0.0.1:9");
    EXPECT_EQ(fetch(HttpRequest::get(server.url("/json"))).status, 200);
}

// Which answers count and what failures say is evaluate()'s, above; here the hand-over.
TEST_F(HttpTransportTest, JsonRequestsHandTheParsedValueToTheMainThread) {
    std::optional<QJsonValue> token;
    JsonRequest::start(*transport, HttpRequest::get(server.url("/json")),
                       [&](const QJsonValue& value) {
                           EXPECT_TRUE(onMainThread());
                           token = value["root"]["api_token"];
                       },
                       {});
    ASSERT_TRUE(waitUntil([&] { return token.has_value(); }));
    EXPECT_EQ(token->toString(), "t");
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
    EXPECT_EQ(JsonRequest::evaluate(response).error, response.errorText);
}

TEST_F(HttpTransportTest, FormBodiesGoOutUnescapedAsFormData) {
    const HttpRequest::FormPairs pairs{
        {"connect_un", "anna maria"}, {"connect_pw", "a&b=c%20"}, {"output_format", "json"}};
    const HttpResponse response = fetch(HttpRequest::formPost(server.url("/echo"), pairs));

    EXPECT_EQ(response.status, 200);
    EXPECT_EQ(response.body, "ok");
    std::lock_guard lock(state.mutex);
    EXPECT_EQ(state.body, "connect_un=anna maria&connect_pw=a&b=c%20&output_format=json");
    EXPECT_EQ(state.contentType, "application/x-www-form-urlencoded");
    EXPECT_EQ(state.contentLength, std::to_string(state.body.size()));
}

TEST_F(HttpTransportTest, StreamedBodyArrivesByteExactWithProgressAddingUp) {
    const quint64 size = 3 * 1024 * 1024 + 7;
    HttpRequest request("POST", server.url("/sink"));
    request.setHeader("Content-Type", "video/mp4");
    request.setBody(std::make_shared<PatternBodySource>(size, 100'000));

    std::vector<qint64> deltas;
    bool progressAfterEnd = false;
    std::optional<HttpResponse> received;
    HttpTransport::Callbacks callbacks;
    callbacks.finished = [&](const HttpResponse& response) { received = response; };
    callbacks.uploadProgress = [&](qint64 bytesSent) {
        EXPECT_TRUE(onMainThread());
        progressAfterEnd |= received.has_value();
        deltas.push_back(bytesSent);
    };
    transport->send(std::move(request), std::move(callbacks));
    ASSERT_TRUE(waitUntil([&] { return received.has_value(); }));

    EXPECT_EQ(received->status, 200);
    EXPECT_EQ(received->body, "stored");
    EXPECT_FALSE(progressAfterEnd);
    EXPECT_TRUE(std::all_of(deltas.begin(), deltas.end(), [](qint64 d) { return d > 0; }));
    EXPECT_EQ(std::accumulate(deltas.begin(), deltas.end(), qint64{0}), qint64(size));
    std::lock_guard lock(state.mutex);
    EXPECT_EQ(state.contentLength, std::to_string(size));
    EXPECT_EQ(state.transferEncoding, "");
    EXPECT_EQ(state.contentType, "video/mp4");
    EXPECT_TRUE(state.body == PatternBodySource::expected(size)) << "body differs";
}

TEST_F(HttpTransportTest, CancelledRequestsReportNothingEvenWhenTheirAnswerIsOnItsWay) {
    int reports = 0;
    HttpTransport::Callbacks counting;
    counting.finished = [&](const HttpResponse&) { ++reports; };

    const HttpRequestId slow = transport->send(HttpRequest::get(server.url("/slow")), counting);
    ASSERT_TRUE(waitUntil([&] { return slowArrived(); }));
    transport->cancel(slow);
    EXPECT_FALSE(transport->isRunning(slow));

    // Give the worker time to finish and post the answer, without letting the main thread
    // take it, then cancel: the answer already queued must not be reported either.
    const HttpRequestId quick = transport->send(HttpRequest::get(server.url("/json")), counting);
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    transport->cancel(quick);

    settle();
    EXPECT_EQ(reports, 0);
}

TEST_F(HttpTransportTest, CancellingAStreamedUploadStopsReadingItsBody) {
    auto source = std::make_shared<PatternBodySource>(quint64(1) << 30, 64 * 1024, 1);
    const std::weak_ptr<PatternBodySource> watched = source;
    HttpRequest request("POST", server.url("/discard"));
    request.setBody(std::move(source));

    HttpRequestId id = 0;
    qint64 sent = 0;
    bool finished = false;
    HttpTransport::Callbacks callbacks;
    callbacks.finished = [&](const HttpResponse&) { finished = true; };
    callbacks.uploadProgress = [&](qint64 bytesSent) {
        sent += bytesSent;
        transport->cancel(id);
    };
    id = transport->send(std::move(request), std::move(callbacks));

    ASSERT_TRUE(waitUntil([&] { return sent > 0; }));
    const qint64 sentAtCancel = sent;
    // The worker lets go of the body once the transfer is gone.
    EXPECT_TRUE(waitUntil([&] { return watched.expired(); }, 3000));
    settle();
    EXPECT_FALSE(finished);
    EXPECT_EQ(sent, sentAtCancel);
}
