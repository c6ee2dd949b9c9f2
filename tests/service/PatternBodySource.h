#pragma once

#include <atomic>
#include <string>

#include "service/BodySource.h"

// A streamed body of any size whose bytes follow a fixed pattern, produced in small pieces and
// optionally slowly, so that transfers can be observed and cancelled half way.
class PatternBodySource : public BodySource {
public:
    PatternBodySource(quint64 size, qint64 maxChunk, int delayPerReadMs = 0)
        : size_(size), maxChunk_(maxChunk), delayPerReadMs_(delayPerReadMs) {}

    static char byteAt(quint64 offset) {
        return static_cast<char>((offset * 31 + offset / 4093) & 0xff);
    }
    static std::string expected(quint64 size);

    quint64 size() const override { return size_; }
    qint64 read(char* data, qint64 maxSize) override;
    bool rewind() override;

    quint64 bytesRead() const { return offset_.load(); }

private:
    quint64 size_;
    qint64 maxChunk_;
    int delayPerReadMs_;
    std::atomic<quint64> offset_ = 0;
};
