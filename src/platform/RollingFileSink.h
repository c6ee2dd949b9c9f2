#pragma once

#include <spdlog/details/file_helper.h>
#include <spdlog/sinks/base_sink.h>

#include <QDateTime>
#include <QString>
#include <functional>
#include <mutex>

// A log file that starts afresh once it is older than the roll period, keeping one file.
// The file's start time is part of its name ("Orvale 2026-11-22--10-15-02.log"), so the age
// survives restarts.
class RollingFileSink : public spdlog::sinks::base_sink<std::mutex> {
public:
    using Clock = std::function<QDateTime()>;
    static constexpr qint64 defaultRollSeconds = 604800;

    RollingFileSink(QString directory, QString baseName, qint64 rollSeconds = defaultRollSeconds,
                    Clock clock = &QDateTime::currentDateTime);

    QString currentFilePath() const;

protected:
    void sink_it_(const spdlog::details::log_msg& msg) override;
    void flush_() override;

private:
    QString fileNameFor(const QDateTime& start) const;
    QDateTime startOf(const QString& fileName) const;
    void openNewestOrStartAfresh();
    void startAfresh(const QDateTime& now);
    void removeLogFiles();

    QString directory_;
    QString baseName_;
    qint64 rollSeconds_;
    Clock clock_;
    QDateTime fileStart_;
    QString filePath_;
    spdlog::details::file_helper file_;
};
