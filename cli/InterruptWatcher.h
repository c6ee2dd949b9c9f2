#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <memory>

// Turns SIGINT and SIGTERM into a Qt signal on the main thread (self-pipe), so a command can
// stop its job and clean up before it exits.
class InterruptWatcher : public QObject {
    Q_OBJECT

public:
    explicit InterruptWatcher(QObject* parent = nullptr);
    ~InterruptWatcher() override;

signals:
    void interrupted();

private:
    std::unique_ptr<QSocketNotifier> notifier_;
};
