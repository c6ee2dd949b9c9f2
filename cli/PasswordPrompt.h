#pragma once

#include <QString>
#include <optional>

// Where orvale-cli gets a password from: never the command line, where every user of the
// machine could read it in the process list.
class PasswordPrompt {
public:
    static constexpr const char* kEnvironmentVariable = "ORVALE_PASSWORD";

    // $ORVALE_PASSWORD when set (and then removed from the environment, so that no helper
    // process inherits it), else asked for on the terminal without echo. None, with the reason
    // in `error`, when standard input is no terminal or ends before a line.
    static std::optional<QString> read(const QString& prompt, QString* error);

private:
    static std::optional<QString> askOnTerminal(const QString& prompt, QString* error);
};
