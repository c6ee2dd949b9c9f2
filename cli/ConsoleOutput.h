#pragma once

#include <QString>

// orvale-cli's own output: results on standard output, messages on standard error.
class ConsoleOutput {
public:
    static void out(const QString& text);
    static void err(const QString& text);
    static bool stdoutIsTerminal();
    static bool stderrIsTerminal();
    // A one-line usage message on stderr; returns the usage exit status.
    static int usageError(const QString& command, const QString& message);
};
