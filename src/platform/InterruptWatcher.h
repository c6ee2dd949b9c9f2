#pragma once

#include <QList>
#include <QObject>
#include <QSocketNotifier>
#include <memory>

// Turns termination signals (SIGINT and SIGTERM unless told others) into a Qt signal on the main
// thread (self-pipe), so a command can stop its job and clean up before it exits. The handler
// only writes a byte; everything else happens on the main thread.
class InterruptWatcher : public QObject {
    Q_OBJECT

public:
    explicit InterruptWatcher(QObject* parent = nullptr);
    InterruptWatcher(QList<int> signalNumbers, QObject* parent = nullptr);
    ~InterruptWatcher() override;

signals:
    void interrupted();

private:
    QList<int> signalNumbers_;
    std::unique_ptr<QSocketNotifier> notifier_;
};
