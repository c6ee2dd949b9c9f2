#include "platform/Log.h"

#include <spdlog/sinks/dist_sink.h>
#include <spdlog/sinks/stdout_color_sinks.h>

#include "BuildInfo.h"
#include "platform/LogFormat.h"
#include "platform/Paths.h"
#include "platform/RollingFileSink.h"

namespace {

std::shared_ptr<spdlog::sinks::dist_sink_mt>& distribution() {
    static auto sinks = std::make_shared<spdlog::sinks::dist_sink_mt>();
    return sinks;
}

std::shared_ptr<spdlog::logger> makeLogger() {
    auto logger = std::make_shared<spdlog::logger>(BuildInfo::applicationName, distribution());
    logger->set_level(spdlog::level::trace);
    logger->flush_on(spdlog::level::info);
    logger->set_formatter(LogFormat::make());
    return logger;
}

}  // namespace

std::shared_ptr<spdlog::logger> Log::logger() {
    static std::shared_ptr<spdlog::logger> instance = makeLogger();
    return instance;
}

spdlog::level::level_enum Log::toSpdlog(Level level) {
    switch (level) {
        case Level::Verbose:
            return spdlog::level::trace;
        case Level::Info:
            return spdlog::level::info;
        case Level::Warning:
            return spdlog::level::warn;
        case Level::Error:
            return spdlog::level::err;
        case Level::Off:
            break;
    }
    return spdlog::level::off;
}

QString Log::defaultDirectory() {
    return Paths::logFolder();
}

void Log::setUp(const Options& options) {
    distribution()->set_sinks({});
    if (options.consoleEnabled) {
        auto console = std::make_shared<spdlog::sinks::stderr_color_sink_mt>();
        console->set_level(toSpdlog(options.consoleLevel));
        addSink(console);
    }
    if (!options.directory.isEmpty()) {
        addSink(std::make_shared<RollingFileSink>(options.directory, QString::fromLatin1(BuildInfo::applicationName)));
    }
}

void Log::addSink(const spdlog::sink_ptr& sink) {
    sink->set_formatter(LogFormat::make());
    distribution()->add_sink(sink);
}

void Log::removeSink(const spdlog::sink_ptr& sink) {
    distribution()->remove_sink(sink);
}
