#include "platform/SingleInstance.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDataStream>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QThread>

#include "platform/Log.h"
#include "platform/Paths.h"

namespace {

// The running instance may have taken the lock a moment ago and not be listening yet, or be
// busy on its main thread; past this, the second start gives up and runs on its own.
constexpr int kHandOverTimeoutMs = 5000;
constexpr char kTaken = '1';

}  // namespace

SingleInstance::SingleInstance(QString folder, QObject* parent)
    : QObject(parent), folder_(std::move(folder)) {
    connect(&server_, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* socket = server_.nextPendingConnection()) {
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QLocalSocket::readyRead, this,
                    [this, socket] { readRequest(socket); });
        }
    });
}

SingleInstance::SingleInstance(QObject* parent) : SingleInstance(Paths::runtimeFolder(), parent) {}

SingleInstance::~SingleInstance() {
    if (lockFd_ >= 0) {
        ::close(lockFd_);
    }
}

QString SingleInstance::socketPath() const {
    return QDir(folder_).filePath(QStringLiteral("orvale.socket"));
}

QStringList SingleInstance::absolutePaths(const QStringList& arguments) {
    QStringList paths;
    for (const QString& argument : arguments) {
        paths << QFileInfo(argument).absoluteFilePath();
    }
    return paths;
}

bool SingleInstance::start(const QStringList& files) {
    QDir().mkpath(folder_);
    const QByteArray lockPath =
        QFile::encodeName(QDir(folder_).filePath(QStringLiteral("orvale.lock")));
    // Close-on-exec: the helpers this process starts must not hold the lock after it has gone.
    lockFd_ = ::open(lockPath.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (lockFd_ < 0) {
        LOG_WARNING("Cannot open the lock in {}; running without handing over", folder_);
        return true;
    }
    if (::flock(lockFd_, LOCK_EX | LOCK_NB) == 0) {
        listen();
        return true;
    }
    ::close(lockFd_);
    lockFd_ = -1;
    if (handOver(files)) {
        LOG_INFO("Handed {} file(s) to the running Orvale", files.size());
        return false;
    }
    LOG_WARNING("The running Orvale does not answer; starting another one");
    return true;
}

void SingleInstance::listen() {
    // What is at the socket's path was left by a process that no longer holds the lock.
    QLocalServer::removeServer(socketPath());
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    if (!server_.listen(socketPath())) {
        LOG_WARNING("Later starts cannot reach this one: {}", server_.errorString());
    }
}

bool SingleInstance::handOver(const QStringList& files) const {
    const QDeadlineTimer deadline(kHandOverTimeoutMs);
    QLocalSocket socket;
    while (true) {
        socket.connectToServer(socketPath());
        if (socket.waitForConnected(static_cast<int>(deadline.remainingTime()))) {
            break;
        }
        if (deadline.hasExpired()) {
            return false;
        }
        QThread::msleep(50);  // the running one has the lock but is not listening yet
    }
    QByteArray request;
    QDataStream stream(&request, QIODevice::WriteOnly);
    stream << files;
    socket.write(request);
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(static_cast<int>(deadline.remainingTime()))) {
            return false;
        }
    }
    return socket.waitForReadyRead(static_cast<int>(deadline.remainingTime())) &&
           socket.read(1) == QByteArray(1, kTaken);
}

void SingleInstance::readRequest(QLocalSocket* socket) {
    QDataStream stream(socket);
    stream.startTransaction();
    QStringList files;
    stream >> files;
    if (!stream.commitTransaction()) {
        return;  // the rest is still on its way
    }
    socket->write(QByteArray(1, kTaken));
    socket->flush();
    socket->disconnectFromServer();
    LOG_VERBOSE("Another start asked for the window with {} file(s)", files.size());
    emit activationRequested(files);
}
