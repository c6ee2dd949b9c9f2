#pragma once

#include <QDirIterator>
#include <QJsonDocument>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>
#include <QTemporaryDir>

// Runs the built orvale-cli and keeps what it printed.
struct CliRun {
    int exitCode = -1;
    QByteArray out;
    QString err;

    QJsonDocument json() const { return QJsonDocument::fromJson(out); }

    static CliRun run(
        const QStringList& arguments,
        const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment(),
        int timeoutMs = 120000) {
        QProcess cli;
        cli.setProcessEnvironment(environment);
        cli.start(QStringLiteral(ORVALE_CLI_PATH), arguments);
        cli.waitForFinished(timeoutMs);
        return {cli.exitStatus() == QProcess::NormalExit ? cli.exitCode() : -1,
                cli.readAllStandardOutput(), QString::fromUtf8(cli.readAllStandardError())};
    }
};

// The environment with the password the service commands read; none at all when it is empty.
inline QProcessEnvironment withPassword(
    const QString& password,
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment()) {
    environment.remove("ORVALE_PASSWORD");
    if (!password.isEmpty()) {
        environment.insert("ORVALE_PASSWORD", password);
    }
    return environment;
}

// A data folder of its own for orvale-cli runs, so that what they leave in the work folder shows.
struct CliDataHome {
    QTemporaryDir dir;

    // With the helpers of that folder first, when one is given.
    QProcessEnvironment environment(const QString& helpersFolder = {}) const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_DATA_HOME", dir.filePath("data"));
        if (!helpersFolder.isEmpty()) {
            environment.insert("ORVALE_HELPERS_DIR", helpersFolder);
        }
        return environment;
    }
    // Every encode in the work folder, whichever run made it.
    QStringList encodes() const {
        QStringList found;
        QDirIterator files(dir.filePath("data/Containers/com.brightfold.Orvale"), {"*.mp4"},
                           QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            found << files.next();
        }
        return found;
    }
};
