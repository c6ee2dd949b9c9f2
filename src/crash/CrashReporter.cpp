#include "crash/CrashReporter.h"

#include <sys/utsname.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "BuildInfo.h"
#include "crash/CrashHandler.h"
#include "crash/CrashPaths.h"
#include "platform/Log.h"

namespace {

bool fail(QString* error, const QString& reason) {
    if (error != nullptr) {
        *error = reason;
    }
    return false;
}

// Only the part before the first dot: the crash log's name should not carry the domain.
std::string shortHostName() {
    char name[256] = {};
    if (gethostname(name, sizeof name - 1) != 0 || name[0] == '\0') {
        return "localhost";
    }
    std::string host(name);
    return host.substr(0, host.find('.'));
}

std::string systemDescription() {
    struct utsname system = {};
    if (uname(&system) != 0) {
        return "Linux";
    }
    return std::string(system.sysname) + " " + system.release + " " + system.machine;
}

CrashHandlerSetup setupFor(const CrashReporter::Options& options, const QString& pendingPath) {
    CrashHandlerSetup setup;
    setup.pendingRecordPath = QFile::encodeName(pendingPath).toStdString();
    setup.crashLogDirectory = QFile::encodeName(options.crashLogDirectory).toStdString();
    setup.applicationName = options.applicationName.toStdString();
    setup.applicationIdentifier = options.applicationIdentifier.toStdString();
    setup.applicationVersion = options.applicationVersion.toStdString();
    setup.executablePath =
        QFile::encodeName(QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget())
            .toStdString();
    setup.systemDescription = systemDescription();
    setup.hostName = options.includeHostName ? shortHostName() : std::string();
    return setup;
}

}  // namespace

CrashReporter::Options CrashReporter::Options::defaults() {
    return {CrashPaths::pendingRecordFolder(), CrashPaths::userCrashLogDirectory(),
            QLatin1String(BuildInfo::applicationName), QLatin1String(BuildInfo::bundleIdentifier),
            QLatin1String(BuildInfo::version)};
}

CrashReporter::CrashReporter(Options options) : m_options(std::move(options)) {}

CrashReporter& CrashReporter::sharedReporter() {
    static CrashReporter reporter(Options::defaults());
    return reporter;
}

QString CrashReporter::pendingRecordPath() const {
    return QDir(m_options.pendingRecordFolder).filePath(CrashPaths::pendingRecordFileName());
}

bool CrashReporter::hasPendingCrashReport() const {
    return QFileInfo(pendingRecordPath()).isFile();
}

std::optional<QByteArray> CrashReporter::loadPendingCrashReportData(QString* error) const {
    QFile file(pendingRecordPath());
    if (!file.open(QIODevice::ReadOnly)) {
        fail(error, QStringLiteral("%1: %2").arg(file.fileName(), file.errorString()));
        return std::nullopt;
    }
    return file.readAll();
}

bool CrashReporter::purgePendingCrashReport() {
    const QString path = pendingRecordPath();
    QFile::remove(path);
    return !QFileInfo::exists(path);
}

bool CrashReporter::enableCrashReporter(QString* error) {
    for (const QString& folder : {m_options.pendingRecordFolder, m_options.crashLogDirectory}) {
        if (!QDir().mkpath(folder)) {
            return fail(error, QStringLiteral("cannot create the folder %1").arg(folder));
        }
    }
    std::string reason;
    if (!CrashHandler::install(setupFor(m_options, pendingRecordPath()), &reason)) {
        return fail(error, QString::fromStdString(reason));
    }
    LOG_VERBOSE("Crash capture on: records to {}, crash logs to {}", pendingRecordPath(),
                m_options.crashLogDirectory);
    m_enabled = true;
    return true;
}
