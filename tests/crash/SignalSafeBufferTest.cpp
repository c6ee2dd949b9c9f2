#include <gtest/gtest.h>

#include <QDateTime>
#include <cstdint>
#include <limits>

#include "crash/SignalSafeBuffer.h"

namespace {

QString text(const SignalSafeBuffer& buffer) {
    return QString::fromUtf8(buffer.data(), static_cast<qsizetype>(buffer.size()));
}

QString utc(std::int64_t seconds, const char* dateTimeSeparator = " ",
            const char* timeSeparator = ":") {
    SignalSafeBuffer buffer;
    buffer.appendUtcDateTime(seconds, dateTimeSeparator, timeSeparator);
    return text(buffer);
}

}  // namespace

TEST(CrashSignalSafeBuffer, FormatsNumbersAtTheirLimits) {
    SignalSafeBuffer buffer;
    buffer.appendDecimal(std::numeric_limits<std::int64_t>::min());
    buffer.appendChar(' ');
    buffer.appendDecimal(0);
    buffer.appendChar(' ');
    buffer.appendUnsigned(std::numeric_limits<std::uint64_t>::max());
    buffer.appendChar(' ');
    buffer.appendUnsigned(7, 2);
    buffer.appendChar(' ');
    buffer.appendHex(0xdeadbeefULL);
    buffer.appendChar(' ');
    buffer.appendHex(0, 16);
    EXPECT_EQ(text(buffer),
              QStringLiteral("-9223372036854775808 0 18446744073709551615 07 deadbeef "
                             "0000000000000000"));
}

TEST(CrashSignalSafeBuffer, EscapesWhatWouldBreakALine) {
    SignalSafeBuffer buffer;
    buffer.appendEscaped("a\\b\nc\rd");
    buffer.appendEscaped(nullptr);
    EXPECT_EQ(text(buffer), QStringLiteral("a\\\\b\\nc\\rd"));
}

TEST(CrashSignalSafeBuffer, CutsOffInsteadOfOverflowing) {
    SignalSafeBuffer buffer;
    const std::string longText(SignalSafeBuffer::kCapacity + 10, 'x');
    buffer.append(longText.c_str());
    buffer.appendHex(0xff);
    EXPECT_TRUE(buffer.truncated());
    EXPECT_EQ(buffer.size(), SignalSafeBuffer::kCapacity);
    EXPECT_EQ(buffer.data()[buffer.size()], '\0');

    buffer.clear();
    EXPECT_FALSE(buffer.truncated());
    EXPECT_EQ(buffer.size(), 0u);
}

TEST(CrashSignalSafeBuffer, DatesAtCalendarCorners) {
    // The walk below covers 1900 to 2099; these lie just outside or between its steps.
    EXPECT_EQ(utc(-1), QStringLiteral("1969-12-31 23:59:59"));
    EXPECT_EQ(utc(4107542400), QStringLiteral("2100-03-01 00:00:00"));  // no 29 February
    EXPECT_EQ(utc(253402300799), QStringLiteral("9999-12-31 23:59:59"));
    EXPECT_EQ(utc(1712318096, "-", ""), QStringLiteral("2024-04-05-115456"));
}

TEST(CrashSignalSafeBuffer, DatesAgreeWithTheCalendarOverCenturies) {
    // A step that is prime to days and years walks through every time of day and month.
    for (std::int64_t seconds = -2208988800; seconds < 4102444800; seconds += 7919 * 97) {
        const QString expected = QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC)
                                     .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
        ASSERT_EQ(utc(seconds), expected) << seconds;
    }
}
