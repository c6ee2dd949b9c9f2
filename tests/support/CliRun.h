#pragma once

#include <QJsonDocument>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>

// Runs the built orvale-cli and keeps what it printed.
struct CliRun {
    int exitCode = -1;
    QByteArray out;
    QString err;

    QJsonDocument json() const { return QJsonDocument::fromJson(out); }

    static CliRun run(const QStringList& arguments, const QProcessEnvironment& environment =
                                                        QProcessEnvironment::systemEnvironment(),
                      int timeoutMs = 120000) {
        QProcess cli;
        cli.setProcessEnvironment(environment);
        cli.start(QStringLiteral(ORVALE_CLI_PATH), arguments);
        cli.waitForFinished(timeoutMs);
        return {cli.exitStatus() == QProcess::NormalExit ? cli.exitCode() : -1, cli.readAllStandardOutput(),
                QString::fromUtf8(cli.readAllStandardError())};
    }
};
