#include "service/PatternBodySource.h"

#include <algorithm>
#include <chrono>
#include <thread>

std::string PatternBodySource::expected(quint64 size) {
    std::string bytes(size, '\0');
    for (quint64 i = 0; i < size; ++i) {
        bytes[i] = byteAt(i);
    }
    return bytes;
}

qint64 PatternBodySource::read(char* data, qint64 maxSize) {
    if (delayPerReadMs_ > 0) {
        std::this_thread::sleep_for(std::chrono::milliseconds(delayPerReadMs_));
    }
    const quint64 start = offset_.load();
    const qint64 count = std::min<qint64>({maxSize, maxChunk_, qint64(size_ - start)});
    for (qint64 i = 0; i < count; ++i) {
        data[i] = byteAt(start + quint64(i));
    }
    offset_ += quint64(count);
    return count;
}

bool PatternBodySource::rewind() {
    offset_ = 0;
    return true;
}
