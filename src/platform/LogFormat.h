#pragma once

#include <spdlog/pattern_formatter.h>

#include <memory>

// The one line layout shared by every sink:
// "2026-11-22 10:15:02.123 verbose Encoder encodeFile:57 Encoding: clip.mov, size: 1024"
class LogFormat {
public:
    static std::unique_ptr<spdlog::formatter> make();
};
