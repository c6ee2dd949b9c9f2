#include <gtest/gtest.h>

#include "media/PresetSelection.h"
#include "model/VideoDetail.h"

TEST(PresetSelection, ReadsTheChoiceBackOrTakesTheFirstSize) {
    struct Case {
        const char* name;
        qint32 widthToEncode;
        bool doNotEncode;
        bool hasDoNotEncode;
        qsizetype selected;
        qint32 writtenWidth;
        const char* writtenMinBitrate;
    };
    // A 1280x720 source is offered 1280x720 down to 640x360 (and "Do Not Encode" last).
    const Case cases[] = {
        {"fresh", 0, false, false, 0, 1280, "2000k"},
        {"chosen", 640, false, false, 5, 640, "1000k"},
        {"chosen, with Do Not Encode offered", 960, false, true, 2, 960, "1600k"},
        {"Do Not Encode chosen", 0, true, true, 6, 0, ""},
        {"Do Not Encode no longer offered", 0, true, false, 0, 1280, "2000k"},
        {"a width that is not offered", 1920, false, false, 0, 1280, "2000k"},
    };
    for (const Case& c : cases) {
        VideoDetail detail;
        detail.width = 1280;
        detail.height = 720;
        detail.widthToEncode = c.widthToEncode;
        detail.doNotEncode = c.doNotEncode;
        const PresetSelection::Result result = PresetSelection::reload(detail, c.hasDoNotEncode);
        EXPECT_EQ(result.selectedIndex, c.selected) << c.name;
        EXPECT_EQ(detail.widthToEncode, c.writtenWidth) << c.name;
        EXPECT_EQ(detail.minBitrate, QLatin1String(c.writtenMinBitrate)) << c.name;
        EXPECT_EQ(detail.doNotEncode, c.doNotEncode) << c.name;  // left as it was
    }
    VideoDetail unknown;  // no frame size: nothing offered, nothing chosen
    unknown.widthToEncode = 640;
    EXPECT_TRUE(PresetSelection::reload(unknown, true).rows.isEmpty());
    EXPECT_EQ(unknown.widthToEncode, 0);
    EXPECT_TRUE(unknown.maxBitrate.isEmpty());
}
