#pragma once

#include <QJsonObject>
#include <QList>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// Runs the built orvale-service for one test: on a free loopback port, with its own request
// record and upload folder in a temporary folder, stopped when the object goes away.
class ServiceProcess {
public:
    // Extra arguments go after the ones this class passes (--port 0, --record, --uploads).
    explicit ServiceProcess(const QStringList& extraArguments = {});
    ~ServiceProcess();
    ServiceProcess(const ServiceProcess&) = delete;
    ServiceProcess& operator=(const ServiceProcess&) = delete;

    // True once the server has told its port; otherwise errorString() says why not.
    bool isRunning() const { return port_ > 0; }
    QString errorString() const { return error_; }

    int port() const { return port_; }
    // "127.0.0.1:PORT": the service address as a user types it, without scheme.
    QString host() const;
    QString baseUrl() const;

    // One object per request, in the order answered (see the tool's README for the fields).
    QList<QJsonObject> requests() const;
    QList<QJsonObject> requestsTo(const QString& endpoint) const;
    // One object per multipart request: fields, stored files, framing and length verdicts.
    QList<QJsonObject> uploads() const;
    QString uploadDirectory() const;
    // What the server wrote on standard error, for failure messages.
    QString diagnostics() const;

private:
    bool waitForPort(int timeoutMs);
    static QList<QJsonObject> readJsonLines(const QString& path);

    QTemporaryDir folder_;
    QProcess process_;
    int port_ = 0;
    QString error_;
};
