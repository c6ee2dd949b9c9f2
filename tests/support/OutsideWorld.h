#pragma once

#include <QByteArray>
#include <QTcpServer>
#include <QTcpSocket>

// Every request for a host that is not this machine goes through a proxy; this one only counts
// the connections made to it. With http_proxy pointed at address(), whatever the application
// would send out reaches it.
class OutsideWorld {
public:
    OutsideWorld() {
        server_.listen(QHostAddress::LocalHost);
        QObject::connect(&server_, &QTcpServer::newConnection, [this] {
            while (QTcpSocket* socket = server_.nextPendingConnection()) {
                ++connections;
                socket->close();
            }
        });
    }

    QByteArray address() const {
        return "http://127.0.0.1:" + QByteArray::number(server_.serverPort());
    }

    int connections = 0;

private:
    QTcpServer server_;
};
