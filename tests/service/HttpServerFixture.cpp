#include "service/HttpServerFixture.h"

#include <QCoreApplication>
#include <QThread>
#include <chrono>
#include <thread>

#include "support/EventLoop.h"

namespace {

void answer(httplib::Server& routes, const char* path, const char* body, const char* type) {
    routes.Get(path, [body, type](const httplib::Request&, httplib::Response& response) {
        response.set_content(body, type);
    });
}

}  // namespace

void ServerState::record(const httplib::Request& request, std::string receivedBody) {
    std::lock_guard lock(mutex);
    body = std::move(receivedBody);
    contentType = request.get_header_value("Content-Type");
    contentLength = request.get_header_value("Content-Length");
    transferEncoding = request.get_header_value("Transfer-Encoding");
}

void ServerState::log(std::string event) {
    std::lock_guard lock(mutex);
    events.push_back(std::move(event));
}

void HttpServerFixture::TearDown() {
    transport.reset();
    {
        std::lock_guard lock(state.mutex);
        state.slowReleased = true;
    }
    state.released.notify_all();
}

bool HttpServerFixture::onMainThread() {
    return QThread::currentThread() == QCoreApplication::instance()->thread();
}

HttpResponse HttpServerFixture::fetch(HttpRequest request) {
    std::optional<HttpResponse> received;
    HttpTransport::Callbacks callbacks;
    callbacks.finished = [&received](const HttpResponse& response) {
        EXPECT_TRUE(onMainThread());
        received = response;
    };
    transport->send(std::move(request), std::move(callbacks));
    EXPECT_TRUE(waitUntil([&] { return received.has_value(); }));
    return received.value_or(HttpResponse{});
}

bool HttpServerFixture::slowArrived() {
    std::lock_guard lock(state.mutex);
    return state.slowArrived;
}

std::vector<std::string> HttpServerFixture::serverEvents() {
    std::lock_guard lock(state.mutex);
    return state.events;
}

void HttpServerFixture::addRoutes(httplib::Server& routes) {
    answer(routes, "/json", R"({"root":{"api_token":"t"}})", "application/json; charset=utf-8");
    answer(routes, "/space", " ", "text/javascript");
    answer(routes, "/html", "<html></html>", "text/html");
    answer(routes, "/not-json", "oops", "application/json");
    routes.Get(R"(/status/(\d+))",
               [](const httplib::Request& request, httplib::Response& response) {
                   response.status = std::stoi(request.matches[1]);
                   response.set_content("{}", "application/json");
               });
    addRecordingRoutes(routes);
    addTimingRoutes(routes);
}

void HttpServerFixture::addRecordingRoutes(httplib::Server& routes) {
    routes.Post("/echo", [this](const httplib::Request& request, httplib::Response& response) {
        state.record(request, request.body);
        response.set_content("ok", "text/plain");
    });
    routes.Post("/sink", [this](const httplib::Request& request, httplib::Response& response,
                                const httplib::ContentReader& read) {
        std::string body;
        read([&body](const char* data, size_t size) {
            body.append(data, size);
            return true;
        });
        state.record(request, std::move(body));
        response.set_content("stored", "text/plain");
    });
    routes.Post("/discard", [](const httplib::Request&, httplib::Response&,
                               const httplib::ContentReader& read) {
        read([](const char*, size_t) { return true; });
    });
}

void HttpServerFixture::addTimingRoutes(httplib::Server& routes) {
    routes.Get(R"(/seq/(\d+))",
               [this](const httplib::Request& request, httplib::Response& response) {
                   const std::string n = request.matches[1];
                   state.log("start " + n);
                   std::this_thread::sleep_for(std::chrono::milliseconds(20));
                   state.log("end " + n);
                   response.set_content(n, "text/plain");
               });
    routes.Get("/slow", [this](const httplib::Request&, httplib::Response& response) {
        std::unique_lock lock(state.mutex);
        state.slowArrived = true;
        state.released.wait_for(lock, std::chrono::seconds(5),
                                [this] { return state.slowReleased; });
        response.set_content("late", "text/plain");
    });
}
