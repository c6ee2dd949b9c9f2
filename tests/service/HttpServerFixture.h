#pragma once

#include <gtest/gtest.h>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "service/HttpTransport.h"
#include "service/LocalHttpServer.h"

// What the local server saw, written by its handler threads.
struct ServerState {
    std::mutex mutex;
    std::condition_variable released;
    bool slowArrived = false;
    bool slowReleased = false;
    std::vector<std::string> events;  // "start 3", "end 3" from /seq/3
    std::string body;
    std::string contentType;
    std::string contentLength;
    std::string transferEncoding;

    void record(const httplib::Request& request, std::string receivedBody);
    void log(std::string event);
};

// A transport and a local server with a fixed set of routes:
//   GET /json, /space, /html, /not-json   fixed answers of various types
//   GET /status/N                         status N with a JSON body
//   GET /seq/N                            logs "start N", waits a little, logs "end N"
//   GET /slow                             answers only when the test ends
//   POST /echo, /sink                     record the request and its body
//   POST /discard                         reads and forgets the body
class HttpServerFixture : public testing::Test {
protected:
    void TearDown() override;

    static bool onMainThread();
    HttpResponse fetch(HttpRequest request);
    bool slowArrived();
    std::vector<std::string> serverEvents();

    ServerState state;
    LocalHttpServer server{[this](httplib::Server& routes) { addRoutes(routes); }};
    std::unique_ptr<HttpTransport> transport = std::make_unique<HttpTransport>();

private:
    void addRoutes(httplib::Server& routes);
    void addRecordingRoutes(httplib::Server& routes);
    void addTimingRoutes(httplib::Server& routes);
};
