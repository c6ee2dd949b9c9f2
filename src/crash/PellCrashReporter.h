#pragma once

#include <QDateTime>
#include <QObject>
#include <QSettings>
#include <QStringList>
#include <memory>

#include "crash/CrashReportSettings.h"
#include "crash/QVCrashReportSender.h"
#include "platform/ApplicationInfo.h"
#include "platform/NotificationCenter.h"

// Finds the oldest crash log of this application that is newer than the stored date and has it
// sent, at most one per start.
//
// The stored date, "PellCrashReporterLastCrashReportDate", is the first start's date until a
// crash log has been sent; from then on it is that log's modification date. Without that step a
// log would be sent again at every start until someone deleted it. A post that gets no answer
// leaves the date alone, so the log is tried again at the next start.
class PellCrashReporter : public QObject {
public:
    struct Options {
        QStringList crashLogDirectoryCandidates;  // the first one that exists is searched
        ApplicationInfo application;              // logs whose names start with its name count

        static Options defaults();
    };

    static inline const QString kMissingSubmissionURL =
        QStringLiteral("Missing PellCrashReporterCrashSubmissionURL");
    static inline const QString kMissingSubmissionURLReason = QStringLiteral(
        "You must specify the URL for crash log submission as the "
        "PellCrashReporterCrashSubmissionURL in either Info.plist or the user defaults!");

    PellCrashReporter(QSettings& settings, NotificationCenter& center, Options options,
                      QObject* parent = nullptr);
    ~PellCrashReporter() override;

    // True when a crash log is on its way; "QVCrashReportSenderFinished" follows once it has
    // been answered. Throws std::runtime_error when no submission address is configured at all:
    // a build without one is broken, and the start should say so.
    bool checkForNewCrashes();

    // The first candidate directory that exists, or none.
    QStringList crashLogDirectories() const;
    // Every file below those directories whose path within its directory starts with the
    // application's name, in the file system's order.
    QStringList crashLogPaths() const;

    const QVCrashReportSender* sender() const { return m_sender.get(); }

private:
    QDateTime lastCrashReportDate();
    void send(const QString& path, const QDateTime& modified, const QString& submissionURL);

    CrashReportSettings m_settings;
    NotificationCenter& m_center;
    Options m_options;
    std::unique_ptr<QVCrashReportSender> m_sender;
};
