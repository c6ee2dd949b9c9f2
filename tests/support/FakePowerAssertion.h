#pragma once

#include "platform/PowerAssertion.h"

// Counts what the job manager asks of the power-assertion layer.
class FakePowerAssertion : public PowerAssertion {
public:
    int create(const QString& name, quint32& handle) override {
        lastName = name;
        ++created;
        handle = static_cast<quint32>(created);
        ++held;
        return 0;
    }
    void release(quint32) override {
        ++released;
        --held;
    }

    QString lastName;
    int created = 0;
    int released = 0;
    int held = 0;
};
