#pragma once

#include <QString>
#include <QtGlobal>

// Keeps the machine from idling into sleep while long work runs. Handles are non-zero;
// 0 means "none held".
class PowerAssertion {
public:
    virtual ~PowerAssertion() = default;

    // Returns 0 and sets the handle on success; a non-zero result when no assertion was made.
    virtual int create(const QString& name, quint32& handle) = 0;
    virtual void release(quint32 handle) = 0;
};
