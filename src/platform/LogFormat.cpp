#include "platform/LogFormat.h"

#include <cstring>
#include <string_view>

namespace {

std::string_view sourceClassName(const char* path) {
    if (path == nullptr) {
        return {};
    }
    std::string_view name(path);
    if (const auto slash = name.find_last_of('/'); slash != std::string_view::npos) {
        name.remove_prefix(slash + 1);
    }
    if (const auto dot = name.find_last_of('.'); dot != std::string_view::npos) {
        name = name.substr(0, dot);
    }
    return name;
}

std::string_view levelName(spdlog::level::level_enum level) {
    switch (level) {
        case spdlog::level::trace:
        case spdlog::level::debug:
            return "verbose";
        case spdlog::level::info:
            return "info";
        case spdlog::level::warn:
            return "warning";
        default:
            return "error";
    }
}

void append(std::string_view text, spdlog::memory_buf_t& dest) {
    dest.append(text.data(), text.data() + text.size());
}

class SourceClassFlag : public spdlog::custom_flag_formatter {
public:
    void format(const spdlog::details::log_msg& msg, const std::tm&, spdlog::memory_buf_t& dest) override {
        append(sourceClassName(msg.source.filename), dest);
    }
    std::unique_ptr<custom_flag_formatter> clone() const override {
        return std::make_unique<SourceClassFlag>();
    }
};

class LevelNameFlag : public spdlog::custom_flag_formatter {
public:
    void format(const spdlog::details::log_msg& msg, const std::tm&, spdlog::memory_buf_t& dest) override {
        append(levelName(msg.level), dest);
    }
    std::unique_ptr<custom_flag_formatter> clone() const override {
        return std::make_unique<LevelNameFlag>();
    }
};

}  // namespace

std::unique_ptr<spdlog::formatter> LogFormat::make() {
    auto formatter = std::make_unique<spdlog::pattern_formatter>();
    formatter->add_flag<SourceClassFlag>('k').add_flag<LevelNameFlag>('q');
    formatter->set_pattern("%Y-%m-%d %H:%M:%S.%e %q %k %!:%# %v");
    return formatter;
}
