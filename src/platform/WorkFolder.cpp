#include "platform/WorkFolder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <cerrno>
#include <cstring>

#include "platform/Log.h"

namespace {

const QString lockName = QStringLiteral(".lock");

int openLockFile(const QString& path) {
    return ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
}

// Held from construction to destruction; blocks while another process holds it, which is only
// ever for a moment.
class WorkFolderLock {
public:
    explicit WorkFolderLock(const QString& root)
        : fd_(openLockFile(QDir(root).filePath(lockName))) {
        if (fd_ >= 0) {
            ::flock(fd_, LOCK_EX);
        }
    }
    ~WorkFolderLock() {
        if (fd_ >= 0) {
            ::close(fd_);
        }
    }
    WorkFolderLock(const WorkFolderLock&) = delete;
    WorkFolderLock& operator=(const WorkFolderLock&) = delete;

private:
    int fd_;
};

bool isHeldByAnother(const QString& folder) {
    const int fd =
        ::open(QFile::encodeName(QDir(folder).filePath(lockName)).constData(), O_RDWR | O_CLOEXEC);
    if (fd < 0) {
        return false;
    }
    const bool held = ::flock(fd, LOCK_EX | LOCK_NB) != 0;
    ::close(fd);
    return held;
}

}  // namespace

WorkFolder::WorkFolder(QString root) : root_(std::move(root)) {}

WorkFolder::~WorkFolder() {
    if (lock_ < 0) {
        return;
    }
    QDir(folder_).removeRecursively();
    ::close(lock_);
}

WorkFolder& WorkFolder::current() {
    static WorkFolder folder;
    return folder;
}

bool WorkFolder::makeProcessFolder() {
    if (!QDir().mkpath(root_)) {
        LOG_WARNING("Cannot create the work folder {}", root_);
        return false;
    }
    const WorkFolderLock guard(root_);
    const QString folder = QDir(root_).filePath(
        QStringLiteral("%1-%2")
            .arg(::getpid())
            .arg(QRandomGenerator::system()->generate(), 8, 16, QLatin1Char('0')));
    if (!QDir().mkpath(folder)) {
        LOG_WARNING("Cannot create the work folder {}", folder);
        return false;
    }
    const int fd = openLockFile(QDir(folder).filePath(lockName));
    if (fd < 0 || ::flock(fd, LOCK_EX | LOCK_NB) != 0) {
        LOG_WARNING("Cannot lock the work folder {}: {}", folder, std::strerror(errno));
        if (fd >= 0) {
            ::close(fd);
        }
        QDir(folder).removeRecursively();
        return false;
    }
    folder_ = folder;
    lock_ = fd;
    return true;
}

QString WorkFolder::newEncodePath(const QString& fileName) {
    if (lock_ < 0 && !makeProcessFolder()) {
        return {};
    }
    const QString encodeFolder = QDir(folder_).filePath(QString::number(++encodes_));
    if (!QDir().mkpath(encodeFolder)) {
        LOG_WARNING("Cannot create the work folder {}", encodeFolder);
        return {};
    }
    return QDir(encodeFolder).filePath(fileName);
}

void WorkFolder::removeEncode(const QString& path) {
    if (path.isEmpty()) {
        return;
    }
    const QFileInfo encode(path);
    const QDir encodeFolder = encode.dir();
    bool numbered = false;
    encodeFolder.dirName().toULongLong(&numbered);
    // Only an encode's own folder goes with it, never a folder of the user's.
    if (!numbered || !QFileInfo::exists(QFileInfo(encodeFolder.path()).dir().filePath(lockName))) {
        return;
    }
    QFile::remove(path);
    QDir().rmdir(encodeFolder.path());
}

void WorkFolder::removeLeftovers(const QString& root) {
    if (!QFileInfo(root).isDir()) {
        return;
    }
    const WorkFolderLock guard(root);
    const QFileInfoList entries = QDir(root).entryInfoList(QDir::AllEntries | QDir::Hidden |
                                                           QDir::System | QDir::NoDotAndDotDot);
    for (const QFileInfo& entry : entries) {
        if (entry.fileName() == lockName) {
            continue;
        }
        if (!entry.isDir() || entry.isSymLink()) {
            QFile::remove(entry.filePath());
        } else if (!isHeldByAnother(entry.filePath())) {
            LOG_VERBOSE("Removing the leftovers of an earlier run: {}", entry.filePath());
            QDir(entry.filePath()).removeRecursively();
        }
    }
}
