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

    PellCrashReporter(QSettings& settings, NotificationCenter& center, Options options,
                      QObject* parent = nullptr);
    ~PellCrashReporter() override;

    // True when a crash log is on its way; "QVCrashReportSenderFinished" follows once it has
    // been answered. Without a submission address nothing is looked at or sent: the build and
    // the user named no one to send crash logs to.
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
