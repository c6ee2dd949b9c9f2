#pragma once

#include <httplib.h>

#include <QString>
#include <QUrl>
#include <functional>
#include <thread>

// An HTTP server inside the test process, on 127.0.0.1 and a port the system picks. Routes are
// added before it starts; it stops when destroyed.
class LocalHttpServer {
public:
    explicit LocalHttpServer(const std::function<void(httplib::Server&)>& addRoutes);
    LocalHttpServer(const LocalHttpServer&) = delete;
    LocalHttpServer& operator=(const LocalHttpServer&) = delete;
    ~LocalHttpServer();

    QUrl url(const QString& path) const;
    int port() const { return port_; }

private:
    httplib::Server server_;
    int port_ = -1;
    std::thread thread_;
};
