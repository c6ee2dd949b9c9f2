#include "jobs/FileSelection.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

namespace {

// Folders that are single documents elsewhere; their insides are not the user's files.
bool isPackage(const QFileInfo& info) {
    static const QStringList packageSuffixes = {
        QStringLiteral("app"),           QStringLiteral("bundle"),
        QStringLiteral("framework"),     QStringLiteral("fcpbundle"),
        QStringLiteral("imovielibrary"), QStringLiteral("photoslibrary")};
    return info.isDir() && packageSuffixes.contains(info.suffix().toLower());
}

// False when a folder cannot be read: the whole walk ends there, keeping what it found.
// Links to folders are not followed, since one may lead back up into the walk.
bool walk(const QString& folder, QStringList& found) {
    const QDir dir(folder);
    if (!dir.isReadable()) {
        return false;
    }
    const QFileInfoList entries =
        dir.entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name | QDir::DirsLast);
    for (const QFileInfo& entry : entries) {
        if (entry.isHidden() || (entry.isDir() && entry.isSymLink())) {
            continue;
        }
        if (!entry.isDir()) {
            found << entry.absoluteFilePath();
        } else if (!isPackage(entry) && !walk(entry.absoluteFilePath(), found)) {
            return false;
        }
    }
    return true;
}

}  // namespace

const QStringList& FileSelection::supportedFileTypes() {
    static const QStringList types = {
        QStringLiteral("jpg"), QStringLiteral("gif"), QStringLiteral("png"), QStringLiteral("mp3"),
        QStringLiteral("m4a"), QStringLiteral("pdf"), QStringLiteral("txt"), QStringLiteral("nfo")};
    return types;
}

bool FileSelection::isSupportedFileType(const QString& path) {
    return supportedFileTypes().contains(QFileInfo(path).suffix().toLower());
}

QStringList FileSelection::collectFiles(const QStringList& paths) {
    QStringList found;
    for (const QString& path : paths) {
        const QFileInfo info(path);
        if (!info.exists()) {
            continue;
        }
        if (info.isDir()) {
            walk(info.absoluteFilePath(), found);
        } else {
            found << info.absoluteFilePath();
        }
    }
    QStringList unique;
    QSet<QString> seen;
    for (const QString& file : std::as_const(found)) {
        if (!seen.contains(file)) {
            seen.insert(file);
            unique << file;
        }
    }
    return unique;
}

QString FileSelection::notSupportedMessage(const QStringList& refusedNames) {
    QString joined;
    for (const QString& name : refusedNames.mid(0, 3)) {
        joined += QStringLiteral(" %1,").arg(name);
    }
    if (refusedNames.size() < 4) {
        joined.chop(1);
        return QStringLiteral("File(s) not supported:%1").arg(joined);
    }
    return QStringLiteral("File(s) not supported:%1 and more").arg(joined);
}
