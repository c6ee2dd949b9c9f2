#pragma once

#include <QString>
#include <QStringList>

// Where crash facts are kept on this machine.
//
// The pending record of the in-process crash handler lives in a folder of its own,
// <generic data>/CrashReporter/com.brightfold.Orvale, and not in the work folder
// (<generic data>/Containers/com.brightfold.Orvale): the work folder's contents are encodes
// that the job manager deletes, and a record must survive until the next start has sent it.
//
// Crash logs, the human-readable text files, go to the user's crash-log directory,
// <generic data>/Logs/DiagnosticReports; the machine-wide directory is /var/crash, where the
// system's own crash collector leaves its reports.
class CrashPaths {
public:
    static QString pendingRecordFolder();
    static QString pendingRecordFileName();  // "PendingCrashRecord.txt"

    static QString userCrashLogDirectory();
    static QString machineCrashLogDirectory();

    // The user's directory first, then the machine's; whether they exist is not checked.
    static QStringList crashLogDirectoryCandidates();
};
