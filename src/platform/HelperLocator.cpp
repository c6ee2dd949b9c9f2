#include "platform/HelperLocator.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

QStringList candidateFolders() {
    QStringList folders;
    const QString fromEnvironment = qEnvironmentVariable("ORVALE_HELPERS_DIR");
    if (!fromEnvironment.isEmpty()) {
        folders << fromEnvironment;
    }
    if (QCoreApplication::instance() != nullptr) {
        folders << QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../libexec/orvale"));
    }
    return folders;
}

bool isExecutableFile(const QString& path) {
    const QFileInfo info(path);
    return info.isFile() && info.isExecutable();
}

}  // namespace

QString HelperLocator::locate(const QString& name) {
    for (const QString& folder : candidateFolders()) {
        const QString path = QDir(folder).filePath(name);
        if (isExecutableFile(path)) {
            return path;
        }
    }
    return QStandardPaths::findExecutable(name);
}

QStringList HelperLocator::searchedLocations(const QString& name) {
    QStringList places;
    for (const QString& folder : candidateFolders()) {
        places << QDir(folder).filePath(name);
    }
    places << QStringLiteral("PATH (%1)").arg(qEnvironmentVariable("PATH"));
    return places;
}
