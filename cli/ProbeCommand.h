#pragma once

#include <QList>

#include "Command.h"
#include "model/File.h"

// orvale-cli probe [--json] [--do-not-encode] PATH...
// Probes every path at once and prints what each is and which sizes it is offered.
class ProbeCommand : public Command {
    Q_OBJECT

public:
    using Command::Command;

    int parse(const QStringList& arguments) override;
    void start() override;

private:
    struct Entry {
        QString path;
        FilePtr file;   // null when the path can't be probed
        QString error;
        bool probed = false;
    };

    void onDetailsLoaded(const FilePtr& file);
    bool allProbed() const;
    void printAndFinish();
    QString textFor(const Entry& entry) const;

    QList<Entry> entries_;
    bool json_ = false;
    bool doNotEncode_ = false;
};
