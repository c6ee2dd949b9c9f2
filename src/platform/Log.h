#pragma once

#include <spdlog/spdlog.h>

#include <QString>
#include <memory>

#include "platform/QtFormat.h"

// Leveled log lines with the source (class name), the operation and the line number.
// Verbose lines always reach the rolling log file; the console shows what its level lets through.
class Log {
public:
    enum class Level { Verbose, Info, Warning, Error, Off };

    struct Options {
        QString directory;                   // empty: no file sink
        Level consoleLevel = Level::Info;
        bool consoleEnabled = true;
    };

    static void setUp(const Options& options);
    static std::shared_ptr<spdlog::logger> logger();
    static void addSink(const spdlog::sink_ptr& sink);
    static void removeSink(const spdlog::sink_ptr& sink);
    static spdlog::level::level_enum toSpdlog(Level level);
    static QString defaultDirectory();
};

#define ORVALE_LOG(level, ...)                                                               \
    Log::logger()->log(spdlog::source_loc{__FILE__, __LINE__, static_cast<const char*>(__func__)}, \
                       level, __VA_ARGS__)

#define LOG_VERBOSE(...) ORVALE_LOG(spdlog::level::trace, __VA_ARGS__)
#define LOG_INFO(...) ORVALE_LOG(spdlog::level::info, __VA_ARGS__)
#define LOG_WARNING(...) ORVALE_LOG(spdlog::level::warn, __VA_ARGS__)
#define LOG_ERROR(...) ORVALE_LOG(spdlog::level::err, __VA_ARGS__)
