#pragma once

#include <QList>
#include <QString>
#include <optional>

#include "server/FaultRule.h"

namespace orvale_service {

// How the service was asked to run, from its command line.
struct Options {
    int port = 0;  // 0: any free port
    QString fixturePath = QStringLiteral(":/fixtures/default.json");
    QString uploadsDir;  // empty: a new folder in the temporary folder
    QString recordPath;  // empty: no request record
    QList<FaultRule> faults;
    int readTimeoutMs = 5000;
    bool verbose = false;

    // The options, or none with a message (or the usage text, for --help) in *message.
    static std::optional<Options> parse(const QStringList& arguments, QString* message,
                                        bool* helpRequested);
    static QString usage();
};

}  // namespace orvale_service
