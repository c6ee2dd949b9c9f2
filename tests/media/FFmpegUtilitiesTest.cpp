#include <gtest/gtest.h>

#include <QStringList>

#include "media/FFmpegUtilities.h"

namespace {

// "1280x720/2000k/3200k", or just "Do Not Encode", so whole lists compare in one line.
QStringList describe(const QList<PresetRow>& rows) {
    QStringList out;
    for (const PresetRow& row : rows) {
        out << (row.isDoNotEncode()
                    ? row.sizeDescription
                    : QStringList{row.sizeDescription, row.minBitrate, row.maxBitrate}.join('/'));
    }
    return out;
}

const QStringList kSixteenByNine{
    "1920x1080/3600k/5000k", "1280x720/2000k/3200k", "1024x576/1800k/3000k", "960x540/1600k/2200k",
    "896x504/1400k/2000k",   "768x432/1200k/1800k",  "640x360/1000k/1250k",
};
const QStringList kFourByThree{
    "1280x960/2200k/3400k", "1024x768/2000k/3200k", "960x720/1800k/2500k",
    "800x600/1400k/2200k",  "720x540/1200k/1800k",  "640x480/1000k/1200k",
};
const QStringList kNineBySixteen{
    "1080x1920/3600k/5000k", "720x1280/2000k/3200k", "576x1024/1800k/3000k",
    "504x896/1400k/2000k",   "432x768/1200k/1800k",  "360x640/1000k/1250k",
};
const QStringList kThreeByFour{
    "960x1280/2200k/3400k", "768x1024/2000k/3200k", "720x960/1800k/2500k",
    "600x800/1400k/2200k",  "540x720/1200k/1800k",  "480x640/1000k/1200k",
};

QStringList operator+(const QString& first, const QStringList& rest) {
    return QStringList{first} + rest;
}

}  // namespace

TEST(FFmpegUtilities, ResolutionsBySizeOffersTheExpectedRows) {
    struct Case {
        double width;
        double height;
        bool hasDoNotEncode;
        QStringList expected;
    };
    // clang-format off
    const Case cases[] = {
        {1920, 1080, true, kSixteenByNine + QStringList{"Do Not Encode"}},
        {3840, 2160, true, kSixteenByNine + QStringList{"Do Not Encode"}},
        {1600, 900, false, "1600x900/1500k/2500k" + kSixteenByNine.mid(1)},
        {480, 270, true, {"480x270/1500k/2500k", "Do Not Encode"}},
        {640, 360, false, {"640x360/1000k/1250k"}},
        {1440, 1080, false, "1440x1080/1500k/2500k" + kFourByThree},
        {1080, 1920, false, kNineBySixteen},
        {960, 1280, false, kThreeByFour},
        {720, 576, false,
         {"720x576/1500k/2500k", "540x432/1500k/2500k", "360x288/1500k/2500k"}},
        // A near miss of a table ratio gets sizes of its own.
        {1920, 1081, false,
         {"1920x1081/3500k/5000k", "1440x810/2200k/3500k", "960x540/1800k/2500k"}},
        {854, 480, false,
         {"854x480/1500k/2500k", "640x360/1500k/2500k", "427x240/1500k/2500k"}},
        {2000, 1000, false,
         {"2000x1000/3500k/5000k", "1500x750/2200k/3500k", "1000x500/1800k/2500k"}},
        {3840, 1600, false,
         {"3840x1600/3500k/5000k", "2880x1200/3500k/5000k", "1920x800/3500k/5000k"}},
        {1000, 1000, true,
         {"1000x1000/1800k/2500k", "750x750/1500k/2500k", "500x500/1500k/2500k", "Do Not Encode"}},
        // Portrait computed sizes are tiered by their height.
        {1000, 2000, false,
         {"1000x2000/3500k/5000k", "750x1500/2200k/3500k", "500x1000/1800k/2500k"}},
        // Odd sizes are truncated, never rounded.
        {1001, 563, false,
         {"1001x563/1800k/2500k", "750x422/1500k/2500k", "500x281/1500k/2500k"}},
        // No frame size: nothing to offer, not even skipping the encode.
        {0, 0, true, {}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message()
                     << c.width << "x" << c.height << " flag " << c.hasDoNotEncode);
        EXPECT_EQ(describe(FFmpegUtilities::resolutionsBySize(c.width, c.height, c.hasDoNotEncode)),
                  c.expected);
    }
}
