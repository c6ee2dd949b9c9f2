#include "server/ServiceServer.h"

#include <QTemporaryDir>

#include "server/Fixture.h"

namespace orvale_service {
namespace {

QString uploadsFolder(const Options& options) {
    if (!options.uploadsDir.isEmpty()) {
        return options.uploadsDir;
    }
    QTemporaryDir folder(QDir::temp().filePath(QStringLiteral("orvale-service-uploads-XXXXXX")));
    folder.setAutoRemove(false);
    return folder.path();
}

// std::regex meta characters only; paths are otherwise taken literally.
std::string literalPattern(const QString& path) {
    std::string pattern;
    for (const char c : path.toStdString()) {
        if (std::string_view(".^$|()[]{}*+?\\").find(c) != std::string_view::npos) {
            pattern += '\\';
        }
        pattern += c;
    }
    return pattern;
}

}  // namespace

ServiceServer::ServiceServer(const Options& options, const Fixture& fixture)
    : options_(options),
      accounts_(fixture),
      session_(accounts_),
      catalogue_(fixture, accounts_),
      uploads_(fixture, accounts_),
      site_(fixture),
      faults_(options.faults),
      store_(uploadsFolder(options)),
      record_(options.recordPath),
      pipeline_(faults_, store_, record_, options.verbose) {}

QStringList ServiceServer::endpointNames() {
    return {"get_token",
            "get_permissions",
            "select_all",
            "put_project_file",
            "put_media_library",
            "version",
            "ad",
            "help",
            "demo",
            "site_file",
            "crash_log",
            "report_add"};
}

bool ServiceServer::start(QString* error) {
    if (!store_.open(error) || !record_.open(error)) {
        return false;
    }
    const int timeout = options_.readTimeoutMs;
    http_.set_read_timeout(timeout / 1000, (timeout % 1000) * 1000);
    // Loopback only: nothing of this server is ever reachable from another machine.
    if (options_.port == 0) {
        port_ = http_.bind_to_any_port("127.0.0.1");
    } else {
        port_ = http_.bind_to_port("127.0.0.1", options_.port) ? options_.port : -1;
    }
    if (port_ <= 0) {
        *error = QStringLiteral("cannot listen on 127.0.0.1:%1").arg(options_.port);
        return false;
    }
    site_.setBaseUrl(QStringLiteral("http://127.0.0.1:%1").arg(port_));
    addRoutes();
    return true;
}

void ServiceServer::run() { http_.listen_after_bind(); }

void ServiceServer::stop() { http_.stop(); }

void ServiceServer::addRoutes() {
    http_.set_pre_routing_handler([](const httplib::Request& request, httplib::Response&) {
        // The request object is the server's own, mutable one; only the view we get is const.
        auto& mutableRequest = const_cast<httplib::Request&>(request);
        const auto type = mutableRequest.headers.find("Content-Type");
        if (type != mutableRequest.headers.end() && mutableRequest.is_multipart_form_data()) {
            const std::string value = type->second;
            mutableRequest.headers.erase(type);
            mutableRequest.headers.emplace(RequestPipeline::kStashedTypeHeader, value);
        }
        return httplib::Server::HandlerResponse::Unhandled;
    });
    for (const Endpoints& group : {session_.endpoints(), catalogue_.endpoints(),
                                   uploads_.endpoints(), site_.endpoints(), crash_.endpoints()}) {
        for (const Endpoint& endpoint : group) {
            route(endpoint);
        }
    }
    http_.Get(".*", [this](const httplib::Request& request, httplib::Response& response) {
        pipeline_.unknown(request, response, nullptr);
    });
    http_.Post(".*", [this](const httplib::Request& request, httplib::Response& response,
                            const httplib::ContentReader& reader) {
        pipeline_.unknown(request, response, &reader);
    });
}

// Every endpoint answers both methods, so a client using the wrong one hears about it.
void ServiceServer::route(const Endpoint& endpoint) {
    const std::string pattern = "(.*)" + literalPattern(endpoint.path);
    http_.Get(pattern,
              [this, endpoint](const httplib::Request& request, httplib::Response& response) {
                  pipeline_.run(endpoint, request, response, nullptr);
              });
    http_.Post(pattern,
               [this, endpoint](const httplib::Request& request, httplib::Response& response,
                                const httplib::ContentReader& reader) {
                   pipeline_.run(endpoint, request, response, &reader);
               });
}

}  // namespace orvale_service
