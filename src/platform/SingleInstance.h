#pragma once

#include <QLocalServer>
#include <QObject>
#include <QStringList>

// One running Orvale per user: a second start hands its files to the first and ends.
//
// The first start holds a lock on a file in the user's runtime folder for as long as it runs
// and listens on a local socket beside it. A later start that finds the lock taken connects to
// that socket, sends its files and waits until the running one has taken them. The lock is the
// kernel's (flock), so it goes with its process however that ends, and the socket a crashed
// process left is replaced: a crash never keeps the next start from opening its window.
//
// A local socket rather than a name on the session bus: it works the same without a session
// bus (ssh, containers, CI) and needs nothing registered.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    // `folder` holds the lock and the socket; it is created when missing.
    explicit SingleInstance(QString folder, QObject* parent = nullptr);
    // In the user's runtime folder.
    explicit SingleInstance(QObject* parent = nullptr);
    ~SingleInstance() override;

    // True when this process is the one that runs (also when the running one could not be
    // reached: a window too many is better than none); false when its files were handed over
    // and it should end.
    bool start(const QStringList& files);

    // The arguments as paths from the working folder, so that they still mean the same files
    // in a process that started elsewhere.
    static QStringList absolutePaths(const QStringList& arguments);

    QString socketPath() const;

signals:
    // Another start asked for the window, with its files (maybe none).
    void activationRequested(const QStringList& files);

private:
    bool handOver(const QStringList& files) const;
    void listen();
    void readRequest(QLocalSocket* socket);

    QString folder_;
    int lockFd_ = -1;
    QLocalServer server_;
};
