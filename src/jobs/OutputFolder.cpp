#include "jobs/OutputFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>
#include <filesystem>
#include <system_error>

#include "platform/Log.h"

QString OutputFolder::prepare(const QString& folder) {
    const auto cannotWrite = [&folder](const QString& reason) {
        return QStringLiteral("Cannot write to the output folder %1: %2").arg(folder, reason);
    };
    std::error_code error;
    std::filesystem::create_directories(QFile::encodeName(folder).toStdString(), error);
    if (error) {
        return cannotWrite(QString::fromStdString(error.message()));
    }
    // Only writing tells: permissions, read-only mounts and access lists all have their say.
    QTemporaryFile probe(QDir(folder).filePath(QStringLiteral(".orvale-write-check-XXXXXX")));
    if (!probe.open()) {
        return cannotWrite(probe.errorString());
    }
    return {};
}

QString OutputFolder::timeStampedName(const QString& fileName, const QDateTime& now,
                                      const QLocale& locale) {
    const QString stamp = locale.toString(now, QStringLiteral("MM-dd-yyyy h.mm.ss AP"));
    const qsizetype dot = fileName.lastIndexOf(QLatin1Char('.'));
    if (dot <= 0) {
        return QStringLiteral("%1 %2").arg(fileName, stamp);
    }
    return QStringLiteral("%1 %2.%3").arg(fileName.left(dot), stamp, fileName.mid(dot + 1));
}

QString OutputFolder::targetPath(const QString& folder, const QString& fileName,
                                 const QDateTime& now, const QLocale& locale) {
    const QString target = QDir(folder).filePath(fileName);
    if (!QFileInfo::exists(target)) {
        return target;
    }
    LOG_VERBOSE("File exists, changing output path");
    return QDir(folder).filePath(timeStampedName(fileName, now, locale));
}
