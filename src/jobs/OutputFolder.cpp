#include "jobs/OutputFolder.h"

#include <QDir>
#include <QFileInfo>

#include "platform/Log.h"

QString OutputFolder::timeStampedName(const QString& fileName, const QDateTime& now, const QLocale& locale) {
    const QString stamp = locale.toString(now, QStringLiteral("MM-dd-yyyy h.mm.ss AP"));
    const qsizetype dot = fileName.lastIndexOf(QLatin1Char('.'));
    if (dot <= 0) {
        return QStringLiteral("%1 %2").arg(fileName, stamp);
    }
    return QStringLiteral("%1 %2.%3").arg(fileName.left(dot), stamp, fileName.mid(dot + 1));
}

QString OutputFolder::targetPath(const QString& folder, const QString& fileName, const QDateTime& now,
                                 const QLocale& locale) {
    const QString target = QDir(folder).filePath(fileName);
    if (!QFileInfo::exists(target)) {
        return target;
    }
    LOG_VERBOSE("File exists, changing output path");
    return QDir(folder).filePath(timeStampedName(fileName, now, locale));
}
