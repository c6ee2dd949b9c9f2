#include "crash/PellCrashReporter.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include "crash/CrashPaths.h"
#include "platform/Log.h"

PellCrashReporter::Options PellCrashReporter::Options::defaults() {
    return {CrashPaths::crashLogDirectoryCandidates(), ApplicationInfo::current()};
}

PellCrashReporter::PellCrashReporter(QSettings& settings, NotificationCenter& center,
                                     Options options, QObject* parent)
    : QObject(parent), m_settings(settings), m_center(center), m_options(std::move(options)) {}

PellCrashReporter::~PellCrashReporter() = default;

QStringList PellCrashReporter::crashLogDirectories() const {
    for (const QString& candidate : m_options.crashLogDirectoryCandidates) {
        if (QFileInfo(candidate).isDir()) {
            LOG_VERBOSE("path: {}", candidate);
            return {candidate};
        }
    }
    return {};
}

QStringList PellCrashReporter::crashLogPaths() const {
    QStringList paths;
    for (const QString& directory : crashLogDirectories()) {
        const QDir base(directory);
        QDirIterator entries(directory, QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            const QString path = entries.next();
            if (base.relativeFilePath(path).startsWith(m_options.application.name)) {
                paths.append(path);
            }
        }
    }
    return paths;
}

QDateTime PellCrashReporter::lastCrashReportDate() {
    if (const auto stored = m_settings.lastCrashReportDate()) {
        return *stored;
    }
    const QDateTime now = QDateTime::currentDateTimeUtc();
    m_settings.setLastCrashReportDate(now);
    return now;
}

bool PellCrashReporter::checkForNewCrashes() {
    const QString submissionURL = m_settings.submissionURL();
    if (submissionURL.isEmpty()) {
        LOG_INFO("No crash-report server is configured: crash logs are not sent");
        return false;
    }
    const QDateTime lastDate = lastCrashReportDate();
    // The oldest new log goes first: the stored date then moves on to its time, and the logs
    // after it still count as new at the next start.
    QString oldestPath;
    QDateTime oldest;
    for (const QString& path : crashLogPaths()) {
        const QDateTime modified = QFileInfo(path).lastModified();
        if (!modified.isValid()) {
            LOG_VERBOSE("No modification date for {}; skipped", path);
            continue;
        }
        if (modified > lastDate && (oldestPath.isEmpty() || modified < oldest)) {
            oldestPath = path;
            oldest = modified;
        }
    }
    if (oldestPath.isEmpty()) {
        return false;
    }
    send(oldestPath, oldest, submissionURL);
    return true;
}

void PellCrashReporter::send(const QString& path, const QDateTime& modified,
                             const QString& submissionURL) {
    QVCrashReportSender::Facts facts{m_options.application,
                                     m_settings.includesAnonymousSystemInformation(),
                                     QLocale(m_settings.preferredReportingLocale())};
    m_sender = std::make_unique<QVCrashReportSender>(m_center, std::move(facts));
    m_sender->setFinishedHandler([this, modified] { m_settings.setLastCrashReportDate(modified); });
    m_sender->sendReportForCrashLogPath(path, QUrl(submissionURL));
}
