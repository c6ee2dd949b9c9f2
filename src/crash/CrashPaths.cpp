#include "crash/CrashPaths.h"

#include <QDir>

#include "BuildInfo.h"
#include "platform/Paths.h"

QString CrashPaths::pendingRecordFolder() {
    return QDir(Paths::libraryFolder())
        .filePath(
            QStringLiteral("CrashReporter/%1").arg(QLatin1String(BuildInfo::bundleIdentifier)));
}

QString CrashPaths::pendingRecordFileName() { return QStringLiteral("PendingCrashRecord.txt"); }

QString CrashPaths::userCrashLogDirectory() {
    return QDir(Paths::libraryFolder()).filePath(QStringLiteral("Logs/DiagnosticReports"));
}

QString CrashPaths::machineCrashLogDirectory() { return QStringLiteral("/var/crash"); }

QStringList CrashPaths::crashLogDirectoryCandidates() {
    return {userCrashLogDirectory(), machineCrashLogDirectory()};
}
