#pragma once

#include <spdlog/sinks/base_sink.h>

#include <mutex>
#include <string>
#include <vector>

#include "platform/Log.h"

// Collects formatted log lines so tests can look at what was logged.
class RecordingSink : public spdlog::sinks::base_sink<std::mutex> {
public:
    std::vector<std::string> lines() {
        std::lock_guard<std::mutex> guard(mutex_);
        return lines_;
    }
    bool contains(const std::string& text) {
        for (const auto& line : lines()) {
            if (line.find(text) != std::string::npos) {
                return true;
            }
        }
        return false;
    }

protected:
    void sink_it_(const spdlog::details::log_msg& msg) override {
        spdlog::memory_buf_t formatted;
        formatter_->format(msg, formatted);
        lines_.emplace_back(formatted.data(), formatted.size());
    }
    void flush_() override {}

private:
    std::vector<std::string> lines_;
};

// Adds a recording sink to the process logger for the lifetime of the scope.
class ScopedLogRecorder {
public:
    ScopedLogRecorder() : sink_(std::make_shared<RecordingSink>()) { Log::addSink(sink_); }
    ~ScopedLogRecorder() { Log::removeSink(sink_); }
    RecordingSink& sink() { return *sink_; }

private:
    std::shared_ptr<RecordingSink> sink_;
};
