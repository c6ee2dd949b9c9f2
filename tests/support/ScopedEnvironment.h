#pragma once

#include <QByteArray>
#include <QtGlobal>

// Sets an environment variable for one test and puts back what was there before.
class ScopedEnvironment {
public:
    ScopedEnvironment(const char* name, const QByteArray& value)
        : name_(name), wasSet_(qEnvironmentVariableIsSet(name)), previous_(qgetenv(name)) {
        qputenv(name, value);
    }
    ~ScopedEnvironment() {
        if (wasSet_) {
            qputenv(name_, previous_);
        } else {
            qunsetenv(name_);
        }
    }
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

private:
    const char* name_;
    bool wasSet_;
    QByteArray previous_;
};
