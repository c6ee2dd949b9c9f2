#pragma once

#include <QObject>
#include <QStringList>

// One subcommand of orvale-cli. A command parses its own arguments, runs on the event loop
// and reports its exit status once through finished().
class Command : public QObject {
    Q_OBJECT

public:
    static constexpr int exitSuccess = 0;
    static constexpr int exitFailure = 1;
    static constexpr int exitUsage = 2;
    static constexpr int exitServiceFailure = 3;

    using QObject::QObject;

    // Returns -1 to go on and start(), or an exit status to end with at once.
    virtual int parse(const QStringList& arguments) = 0;
    virtual void start() = 0;

signals:
    void finished(int exitStatus);
};
