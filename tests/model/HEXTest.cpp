#include <gtest/gtest.h>

#include "model/HEX.h"
#include "model/InvalidColorValueException.h"

namespace {

// In the last two, a component stops at its first non-hex digit.
TEST(HEX, ReadsEveryFormOfColour) {
    const std::pair<const char*, QRgb> cases[] = {
        {"#fff", 0xffffffff},    {"#80000000", 0x80000000}, {"#ededed", 0xffededed},
        {"#dFdFdF", 0xffdfdfdf}, {"#12a", 0xff1122aa},      {"8f05", 0x88ff0055},
        {"#1a2b3c", 0xff1a2b3c}, {"#7f1a2b3c", 0x7f1a2b3c}, {"##a#bc", 0xffaabbcc},
        {"#1g2a3b", 0xff012a3b}, {"#g00", 0xff000000},
    };
    for (const auto& [text, argb] : cases) {
        EXPECT_EQ(HEX::colorWithHexString(QString::fromUtf8(text)).rgba(), argb) << text;
    }
}

TEST(HEX, OtherLengthsAreRejectedWithTheTextAsPassed) {
    for (const char* text : {"", "#", "#12", "#12345", "#1234567", "#123456789"}) {
        const QString hex = QString::fromUtf8(text);
        try {
            HEX::colorWithHexString(hex);
            ADD_FAILURE() << "accepted " << text;
        } catch (const InvalidColorValueException& error) {
            EXPECT_EQ(error.name(), QStringLiteral("Invalid color value"));
            EXPECT_TRUE(QString(error.what()).startsWith("Color value " + hex + " is invalid."))
                << error.what();
        }
    }
}

}  // namespace
