#include "support/ServiceProcess.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QJsonDocument>

ServiceProcess::ServiceProcess(const QStringList& extraArguments) {
    const QStringList arguments = QStringList{"--port",    "0",
                                              "--record",  folder_.filePath("requests.jsonl"),
                                              "--uploads", uploadDirectory()} +
                                  extraArguments;
    process_.setStandardErrorFile(folder_.filePath("stderr.txt"));
    process_.start(QStringLiteral(ORVALE_SERVICE_PATH), arguments);
    if (!waitForPort(10000)) {
        error_ += QStringLiteral(" ") + diagnostics();
    }
}

ServiceProcess::~ServiceProcess() {
    if (process_.state() == QProcess::NotRunning) {
        return;
    }
    process_.terminate();
    if (!process_.waitForFinished(3000)) {
        process_.kill();
        process_.waitForFinished(3000);
    }
}

bool ServiceProcess::waitForPort(int timeoutMs) {
    if (!process_.waitForStarted(timeoutMs)) {
        error_ = QStringLiteral("orvale-service did not start: %1").arg(process_.errorString());
        return false;
    }
    const QDeadlineTimer deadline(timeoutMs);
    while (!process_.canReadLine()) {
        if (!process_.waitForReadyRead(static_cast<int>(deadline.remainingTime()))) {
            error_ = QStringLiteral("orvale-service did not tell its port");
            return false;
        }
    }
    const QString line = QString::fromUtf8(process_.readLine()).trimmed();
    if (line.startsWith(QStringLiteral("listening on 127.0.0.1:"))) {
        port_ = line.section(QLatin1Char(':'), -1).toInt();
    }
    if (port_ <= 0) {
        error_ = QStringLiteral("unexpected first line from orvale-service: %1").arg(line);
    }
    return port_ > 0;
}

QString ServiceProcess::host() const { return QStringLiteral("127.0.0.1:%1").arg(port_); }

QString ServiceProcess::baseUrl() const { return QStringLiteral("http://") + host(); }

QList<QJsonObject> ServiceProcess::requests() const {
    return readJsonLines(folder_.filePath("requests.jsonl"));
}

QList<QJsonObject> ServiceProcess::requestsTo(const QString& endpoint) const {
    QList<QJsonObject> matching = requests();
    matching.removeIf([&](const QJsonObject& r) { return r.value("endpoint") != endpoint; });
    return matching;
}

QList<QJsonObject> ServiceProcess::uploads() const {
    return readJsonLines(folder_.filePath("uploads/index.jsonl"));
}

QString ServiceProcess::uploadDirectory() const { return folder_.filePath("uploads"); }

QString ServiceProcess::diagnostics() const {
    QFile file(folder_.filePath("stderr.txt"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QList<QJsonObject> ServiceProcess::readJsonLines(const QString& path) {
    QList<QJsonObject> lines;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return lines;
    }
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (!line.trimmed().isEmpty()) {
            lines.append(QJsonDocument::fromJson(line).object());
        }
    }
    return lines;
}
