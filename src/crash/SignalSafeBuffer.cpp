#include "crash/SignalSafeBuffer.h"

#include <unistd.h>

#include <cerrno>

void SignalSafeBuffer::clear() {
    m_size = 0;
    m_text[0] = '\0';
    m_truncated = false;
}

void SignalSafeBuffer::append(const char* text) {
    if (text == nullptr) {
        return;
    }
    std::size_t length = 0;
    while (text[length] != '\0') {
        ++length;
    }
    append(text, length);
}

void SignalSafeBuffer::append(const char* text, std::size_t length) {
    for (std::size_t i = 0; i < length; ++i) {
        appendChar(text[i]);
    }
}

void SignalSafeBuffer::appendChar(char c) {
    if (m_size >= kCapacity) {
        m_truncated = true;
        return;
    }
    m_text[m_size++] = c;
    m_text[m_size] = '\0';
}

void SignalSafeBuffer::appendDecimal(std::int64_t value) {
    if (value < 0) {
        appendChar('-');
        // Negating in unsigned arithmetic keeps the smallest int64 well defined.
        appendUnsigned(0 - static_cast<std::uint64_t>(value));
        return;
    }
    appendUnsigned(static_cast<std::uint64_t>(value));
}

namespace {

void appendInBase(SignalSafeBuffer& buffer, std::uint64_t value, unsigned base,
                  unsigned minimumDigits) {
    static constexpr char kDigits[] = "0123456789abcdef";
    char reversed[64];
    unsigned count = 0;
    do {
        reversed[count++] = kDigits[value % base];
        value /= base;
    } while (value != 0 && count < sizeof reversed);
    while (count < minimumDigits && count < sizeof reversed) {
        reversed[count++] = '0';
    }
    while (count > 0) {
        buffer.appendChar(reversed[--count]);
    }
}

}  // namespace

void SignalSafeBuffer::appendUnsigned(std::uint64_t value, unsigned minimumDigits) {
    appendInBase(*this, value, 10, minimumDigits);
}

void SignalSafeBuffer::appendHex(std::uint64_t value, unsigned minimumDigits) {
    appendInBase(*this, value, 16, minimumDigits);
}

void SignalSafeBuffer::appendUtcDateTime(std::int64_t epochSeconds, const char* dateTimeSeparator,
                                         const char* timeSeparator) {
    const UtcDateTime t = utcDateTimeFromEpochSeconds(epochSeconds);
    appendDecimal(t.year);
    appendChar('-');
    appendUnsigned(static_cast<std::uint64_t>(t.month), 2);
    appendChar('-');
    appendUnsigned(static_cast<std::uint64_t>(t.day), 2);
    append(dateTimeSeparator);
    appendUnsigned(static_cast<std::uint64_t>(t.hour), 2);
    append(timeSeparator);
    appendUnsigned(static_cast<std::uint64_t>(t.minute), 2);
    append(timeSeparator);
    appendUnsigned(static_cast<std::uint64_t>(t.second), 2);
}

void SignalSafeBuffer::appendEscaped(const char* text) {
    if (text == nullptr) {
        return;
    }
    for (; *text != '\0'; ++text) {
        switch (*text) {
            case '\\':
                append("\\\\");
                break;
            case '\n':
                append("\\n");
                break;
            case '\r':
                append("\\r");
                break;
            default:
                appendChar(*text);
        }
    }
}

bool SignalSafeBuffer::writeTo(int fd) const {
    std::size_t written = 0;
    while (written < m_size) {
        const ssize_t n = ::write(fd, m_text + written, m_size - written);
        if (n < 0 && errno == EINTR) {
            continue;
        }
        if (n <= 0) {
            return false;
        }
        written += static_cast<std::size_t>(n);
    }
    return true;
}

UtcDateTime utcDateTimeFromEpochSeconds(std::int64_t epochSeconds) {
    // Floor division, so moments before 1970 land on the right day and second.
    std::int64_t days = epochSeconds / 86400;
    std::int64_t secondOfDay = epochSeconds % 86400;
    if (secondOfDay < 0) {
        secondOfDay += 86400;
        --days;
    }

    // Days to civil date, counting in 400-year eras that start on 1 March, so the leap day
    // is the last day of each year of the count.
    const std::int64_t shifted = days + 719468;
    const std::int64_t era = (shifted >= 0 ? shifted : shifted - 146096) / 146097;
    const std::int64_t dayOfEra = shifted - era * 146097;
    const std::int64_t yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t monthFromMarch = (5 * dayOfYear + 2) / 153;
    const int day = static_cast<int>(dayOfYear - (153 * monthFromMarch + 2) / 5 + 1);
    const int month =
        static_cast<int>(monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9);
    const std::int64_t year = yearOfEra + era * 400 + (month <= 2 ? 1 : 0);

    return {year,
            month,
            day,
            static_cast<int>(secondOfDay / 3600),
            static_cast<int>(secondOfDay % 3600 / 60),
            static_cast<int>(secondOfDay % 60)};
}
