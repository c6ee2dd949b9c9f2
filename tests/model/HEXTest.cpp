#include <gtest/gtest.h>

#include "model/HEX.h"
#include "model/InvalidColorValueException.h"

namespace {

struct HexColor {
    const char* text;
    int red;
    int green;
    int blue;
    int alpha;
};

void PrintTo(const HexColor& row, std::ostream* out) { *out << '"' << row.text << '"'; }

class ColorWithHexString : public testing::TestWithParam<HexColor> {};

TEST_P(ColorWithHexString, ReadsEveryForm) {
    const HexColor& row = GetParam();
    const QColor color = HEX::colorWithHexString(QString::fromUtf8(row.text));
    EXPECT_EQ(color.spec(), QColor::Rgb);
    EXPECT_EQ(color.red(), row.red) << row.text;
    EXPECT_EQ(color.green(), row.green) << row.text;
    EXPECT_EQ(color.blue(), row.blue) << row.text;
    EXPECT_EQ(color.alpha(), row.alpha) << row.text;
}

INSTANTIATE_TEST_SUITE_P(Texts, ColorWithHexString,
                         testing::Values(HexColor{"#fff", 255, 255, 255, 255},
                                         HexColor{"#80000000", 0, 0, 0, 128},
                                         HexColor{"#ededed", 0xed, 0xed, 0xed, 255},
                                         HexColor{"#dFdFdF", 0xdf, 0xdf, 0xdf, 255},
                                         HexColor{"#12a", 0x11, 0x22, 0xaa, 255},
                                         HexColor{"8f05", 0xff, 0x00, 0x55, 0x88},
                                         HexColor{"#1a2b3c", 0x1a, 0x2b, 0x3c, 255},
                                         HexColor{"#7f1a2b3c", 0x1a, 0x2b, 0x3c, 0x7f},
                                         HexColor{"##a#bc", 0xaa, 0xbb, 0xcc, 255},
                                         // a component stops at its first non-hex digit
                                         HexColor{"#1g2a3b", 1, 0x2a, 0x3b, 255},
                                         HexColor{"#g00", 0, 0, 0, 255}));

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
