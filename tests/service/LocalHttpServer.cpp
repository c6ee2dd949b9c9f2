#include "service/LocalHttpServer.h"

#include <chrono>

LocalHttpServer::LocalHttpServer(const std::function<void(httplib::Server&)>& addRoutes) {
    addRoutes(server_);
    server_.set_keep_alive_timeout(1);
    port_ = server_.bind_to_any_port("127.0.0.1");
    thread_ = std::thread([this] { server_.listen_after_bind(); });
    while (!server_.is_running()) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

LocalHttpServer::~LocalHttpServer() {
    server_.stop();
    thread_.join();
}

QUrl LocalHttpServer::url(const QString& path) const {
    return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(port_).arg(path));
}
