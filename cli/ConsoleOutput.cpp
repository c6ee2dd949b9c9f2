#include "ConsoleOutput.h"

#include <unistd.h>

#include <cstdio>

#include "Command.h"

void ConsoleOutput::out(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

void ConsoleOutput::err(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stderr);
    std::fflush(stderr);
}

bool ConsoleOutput::stdoutIsTerminal() {
    return isatty(STDOUT_FILENO) == 1;
}

bool ConsoleOutput::stderrIsTerminal() {
    return isatty(STDERR_FILENO) == 1;
}

int ConsoleOutput::usageError(const QString& command, const QString& message) {
    err(QStringLiteral("orvale-cli %1: %2 (see 'orvale-cli %1 --help')\n").arg(command, message));
    return Command::exitUsage;
}
