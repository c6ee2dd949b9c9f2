#include "PasswordPrompt.h"

#include <termios.h>
#include <unistd.h>

#include <csignal>
#include <iostream>
#include <string>

#include "ConsoleOutput.h"

namespace {

struct termios savedTerminal;

// An interrupt while echo is off would leave the user's shell without echo; put the terminal
// back, then die of the signal as usual. Only async-signal-safe calls here.
extern "C" void restoreTerminalAndDie(int signalNumber) {
    tcsetattr(STDIN_FILENO, TCSANOW, &savedTerminal);
    std::signal(signalNumber, SIG_DFL);
    std::raise(signalNumber);
}

class EchoOff {
public:
    EchoOff() {
        active_ = tcgetattr(STDIN_FILENO, &savedTerminal) == 0;
        if (!active_) {
            return;
        }
        previousInt_ = std::signal(SIGINT, restoreTerminalAndDie);
        previousTerm_ = std::signal(SIGTERM, restoreTerminalAndDie);
        struct termios silent = savedTerminal;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent);
    }
    ~EchoOff() {
        if (!active_) {
            return;
        }
        tcsetattr(STDIN_FILENO, TCSANOW, &savedTerminal);
        std::signal(SIGINT, previousInt_);
        std::signal(SIGTERM, previousTerm_);
    }
    EchoOff(const EchoOff&) = delete;
    EchoOff& operator=(const EchoOff&) = delete;

private:
    bool active_ = false;
    void (*previousInt_)(int) = SIG_DFL;
    void (*previousTerm_)(int) = SIG_DFL;
};

}  // namespace

std::optional<QString> PasswordPrompt::read(const QString& prompt, QString* error) {
    if (qEnvironmentVariableIsSet(kEnvironmentVariable)) {
        const QString password = qEnvironmentVariable(kEnvironmentVariable);
        qunsetenv(kEnvironmentVariable);
        return password;
    }
    return askOnTerminal(prompt, error);
}

std::optional<QString> PasswordPrompt::askOnTerminal(const QString& prompt, QString* error) {
    if (isatty(STDIN_FILENO) != 1) {
        *error = QStringLiteral("no password: set %1 or run on a terminal")
                     .arg(QLatin1String(kEnvironmentVariable));
        return std::nullopt;
    }
    ConsoleOutput::err(prompt);
    std::string line;
    bool gotLine = false;
    {
        const EchoOff echoOff;
        gotLine = static_cast<bool>(std::getline(std::cin, line));
    }
    ConsoleOutput::err(QStringLiteral("\n"));  // the Return typed was not echoed
    if (!gotLine) {
        *error = QStringLiteral("no password given");
        return std::nullopt;
    }
    if (!line.empty() && line.back() == '\r') {
        line.pop_back();
    }
    return QString::fromStdString(line);
}
