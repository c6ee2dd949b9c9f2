#pragma once

#include <QObject>
#include <QSettings>
#include <memory>

#include "crash/CrashReportManager.h"
#include "crash/CrashReporter.h"
#include "crash/PellCrashReporter.h"
#include "platform/NotificationCenter.h"

// The crash reporting a start of the application does, one channel after the other: a new
// crash log goes to the crash-log address; once that post has been answered, the record the
// in-process crash handler left is summarised and discarded, and the handler is switched on for
// this run.
//
// A start that finds no new crash log, or whose post gets no answer, does neither: the record
// waits for a later start and this run has no crash capture. That keeps a crash at start-up
// from recording itself over and over while its log has not gone out yet.
class CrashReportLauncher : public QObject {
public:
    struct Parts {
        QSettings& settings;
        NotificationCenter& center;
        CrashReporter& crashReporter;
        CrashReportManager& crashReportManager;
        PellCrashReporter::Options crashLogs;
    };

    // With the application's settings store, notification centre, reporter and manager.
    explicit CrashReportLauncher(QObject* parent = nullptr);
    explicit CrashReportLauncher(Parts parts, QObject* parent = nullptr);
    ~CrashReportLauncher() override;

    // Listens for the end of the crash-log post, then looks for a new crash log.
    void start();

    // The crash-log post has been answered.
    void qvCrashReportSenderFinished();
    // Sends the pending record, whether or not it can be read, and then discards it.
    void handleCrashReport();
    void finish(CrashReporter& crashReporter);

    PellCrashReporter& crashLogFinder() { return *m_crashLogFinder; }

private:
    QSettings& m_settings;
    NotificationCenter& m_center;
    CrashReporter& m_crashReporter;
    CrashReportManager& m_crashReportManager;
    std::unique_ptr<PellCrashReporter> m_crashLogFinder;
};
