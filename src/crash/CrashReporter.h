#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

// Crash capture of this process, and the record a crash of an earlier run left behind.
//
// enableCrashReporter() switches capture on for the rest of the process's life (see
// crash/CrashHandler.h for what happens on a crash). A crash then leaves two files: the
// pending record in the pending-record folder, read at the next start through
// loadPendingCrashReportData() and CrashReportRecord::fromData(), and a crash log in the
// crash-log directory, which the crash-log finder picks up like any other.
//
// The signal handlers are process-wide: the folders that count are those of the reporter
// that was enabled last.
class CrashReporter {
public:
    struct Options {
        QString pendingRecordFolder;  // CrashPaths::pendingRecordFolder()
        QString crashLogDirectory;    // CrashPaths::userCrashLogDirectory()
        QString applicationName;      // first part of crash log names; "Orvale"
        QString applicationIdentifier;
        QString applicationVersion;
        // The machine's name goes into crash logs only when the user agreed to send machine
        // facts.
        bool includeHostName = false;

        static Options defaults();
    };

    explicit CrashReporter(Options options);

    // The reporter with the default options.
    static CrashReporter& sharedReporter();

    bool hasPendingCrashReport() const;

    // The pending record's bytes; std::nullopt, with the reason in error when given, when
    // there is none or it cannot be read.
    std::optional<QByteArray> loadPendingCrashReportData(QString* error = nullptr) const;

    // Deletes the pending record; true when none is left.
    bool purgePendingCrashReport();

    // Creates the folders and installs the handlers; false, with the reason in error when
    // given, when the process runs on without crash capture.
    bool enableCrashReporter(QString* error = nullptr);

    // Whether enableCrashReporter() has switched capture on through this reporter.
    bool isEnabled() const { return m_enabled; }

    QString pendingRecordPath() const;
    const Options& options() const { return m_options; }
    // Takes effect at the next enableCrashReporter().
    void setIncludeHostName(bool include) { m_options.includeHostName = include; }

private:
    Options m_options;
    bool m_enabled = false;
};
