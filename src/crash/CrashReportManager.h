#pragma once

#include <QSettings>
#include <QString>

#include "crash/CrashReportRecord.h"
#include "platform/ApplicationInfo.h"
#include "service/HttpTransport.h"

// Sends the summary of a crash that the in-process crash handler recorded to the crash-report
// server, as the form pairs "description" and "version". The answer is not looked at: the
// record is discarded afterwards whatever happens, so there is nothing to do about a failure.
class CrashReportManager {
public:
    // Reads the server's host from the application's settings store at each report.
    static CrashReportManager& sharedInstance();

    explicit CrashReportManager(QSettings& settings,
                                ApplicationInfo application = ApplicationInfo::current());
    CrashReportManager(const CrashReportManager&) = delete;
    CrashReportManager& operator=(const CrashReportManager&) = delete;

    void sendCrashReport(const CrashReportRecord& record);

    // "Crashed on <time>\nCrashed with exception: (name:<name>, reason:<reason>)\n
    // Crashed with signal <name> (code <code>, address=0x<hex>)"; a crash without an exception
    // says "(null)" for its name and reason.
    static QString descriptionOf(const CrashReportRecord& record);
    // "v" + the short version + "." + the build number.
    static QString versionOf(const ApplicationInfo& application);

private:
    QSettings& m_settings;
    ApplicationInfo m_application;
    HttpTransport m_transport;
};
