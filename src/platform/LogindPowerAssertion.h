#pragma once

#include <QDBusUnixFileDescriptor>
#include <QHash>

#include "platform/PowerAssertion.h"

// Idle-sleep inhibition through systemd-logind: an "idle" inhibitor lock in "block" mode, held
// as the file descriptor logind hands out, until released. Without a system bus (containers,
// CI) creation fails and says so in the log; nothing else changes.
class LogindPowerAssertion : public PowerAssertion {
public:
    static LogindPowerAssertion& sharedInstance();

    int create(const QString& name, quint32& handle) override;
    void release(quint32 handle) override;

private:
    QHash<quint32, QDBusUnixFileDescriptor> held_;
    quint32 nextHandle_ = 1;
};
