#pragma once

#include <QObject>

// Announces that the machine is about to sleep: systemd-logind's PrepareForSleep(true) on the
// system bus. Without a system bus it never announces anything.
class SleepWatcher : public QObject {
    Q_OBJECT

public:
    explicit SleepWatcher(QObject* parent = nullptr);

    bool isWatching() const { return watching_; }

signals:
    void willSleep();

private slots:
    void onPrepareForSleep(bool start);

private:
    bool watching_ = false;
};
