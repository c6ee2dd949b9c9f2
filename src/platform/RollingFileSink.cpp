#include "platform/RollingFileSink.h"

#include <QDir>
#include <QFileInfo>

namespace {
const QString startFormat = QStringLiteral("yyyy-MM-dd--HH-mm-ss");
}

RollingFileSink::RollingFileSink(QString directory, QString baseName, qint64 rollSeconds, Clock clock)
    : directory_(std::move(directory)),
      baseName_(std::move(baseName)),
      rollSeconds_(rollSeconds),
      clock_(std::move(clock)) {
    QDir().mkpath(directory_);
    openNewestOrStartAfresh();
}

QString RollingFileSink::currentFilePath() const {
    return filePath_;
}

QString RollingFileSink::fileNameFor(const QDateTime& start) const {
    return QStringLiteral("%1 %2.log").arg(baseName_, start.toString(startFormat));
}

QDateTime RollingFileSink::startOf(const QString& fileName) const {
    const QString prefix = baseName_ + QLatin1Char(' ');
    if (!fileName.startsWith(prefix) || !fileName.endsWith(QStringLiteral(".log"))) {
        return {};
    }
    const QString stamp = fileName.mid(prefix.size(), fileName.size() - prefix.size() - 4);
    return QDateTime::fromString(stamp, startFormat);
}

void RollingFileSink::openNewestOrStartAfresh() {
    const QDateTime now = clock_();
    QDateTime newest;
    const QStringList names = QDir(directory_).entryList({baseName_ + QStringLiteral(" *.log")}, QDir::Files);
    for (const QString& name : names) {
        const QDateTime start = startOf(name);
        if (start.isValid() && (!newest.isValid() || start > newest)) {
            newest = start;
        }
    }
    if (newest.isValid() && newest.secsTo(now) < rollSeconds_ && newest <= now) {
        fileStart_ = newest;
        filePath_ = QDir(directory_).filePath(fileNameFor(newest));
        file_.open(filePath_.toStdString(), false);
        return;
    }
    startAfresh(now);
}

void RollingFileSink::removeLogFiles() {
    QDir dir(directory_);
    for (const QString& name : dir.entryList({baseName_ + QStringLiteral(" *.log")}, QDir::Files)) {
        dir.remove(name);
    }
}

void RollingFileSink::startAfresh(const QDateTime& now) {
    file_.close();
    removeLogFiles();
    fileStart_ = now;
    filePath_ = QDir(directory_).filePath(fileNameFor(now));
    file_.open(filePath_.toStdString(), true);
}

void RollingFileSink::sink_it_(const spdlog::details::log_msg& msg) {
    const QDateTime now = clock_();
    if (fileStart_.secsTo(now) >= rollSeconds_) {
        startAfresh(now);
    }
    spdlog::memory_buf_t formatted;
    formatter_->format(msg, formatted);
    file_.write(formatted);
}

void RollingFileSink::flush_() {
    file_.flush();
}
