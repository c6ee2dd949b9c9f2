#pragma once

#include <cstddef>
#include <cstdint>

// A fixed-capacity text buffer for the crash handler. Nothing here allocates, locks or calls
// into stdio, so every member may run inside a signal handler. Text that does not fit is cut
// off rather than overflowing: a shortened crash log beats a second fault.
class SignalSafeBuffer {
public:
    static constexpr std::size_t kCapacity = 4096;

    void clear();
    void append(const char* text);
    void append(const char* text, std::size_t length);
    void appendChar(char c);
    void appendDecimal(std::int64_t value);
    void appendUnsigned(std::uint64_t value, unsigned minimumDigits = 1);
    void appendHex(std::uint64_t value, unsigned minimumDigits = 1);  // lower case, no prefix

    // Seconds since the epoch as "yyyy-MM-dd" + dateTimeSeparator + "HH" + timeSeparator + "mm"...
    // in UTC; the handler cannot use localtime, which takes locks and reads files.
    void appendUtcDateTime(std::int64_t epochSeconds, const char* dateTimeSeparator,
                           const char* timeSeparator);

    // Backslash, newline and carriage return become \\, \n and \r, so that a value always
    // stays on its own line of the pending record.
    void appendEscaped(const char* text);

    // Writes the whole content to fd, retrying short writes; false when the descriptor fails.
    bool writeTo(int fd) const;

    const char* data() const { return m_text; }  // always zero-terminated
    std::size_t size() const { return m_size; }
    bool truncated() const { return m_truncated; }

private:
    char m_text[kCapacity + 1] = {};
    std::size_t m_size = 0;
    bool m_truncated = false;
};

struct UtcDateTime {
    std::int64_t year;
    int month;  // 1-12
    int day;    // 1-31
    int hour;
    int minute;
    int second;
};

// The proleptic Gregorian calendar date of a moment, by arithmetic alone.
UtcDateTime utcDateTimeFromEpochSeconds(std::int64_t epochSeconds);
