#include <gtest/gtest.h>

#include "model/ResultsLayout.h"

TEST(ResultsLayout, StacksWithFixedGapsGrowsTheListToFourRowsAndCentresTheStack) {
    // Buttons 40, "Try Again" 26, heading 20, count 30, image 130, in a 562-point background.
    const ResultsLayout::Heights screen{40, 40, 26, 20, 30, 130, 562};
    struct Case {
        qsizetype failed;
        float list;
        float scroll;
        float countY;
        float stack;
    };
    for (const Case& c : {Case{0, 0, 0, 62, 270}, Case{1, 26, 26, 151, 359},
                          Case{4, 104, 104, 229, 437}, Case{7, 182, 130, 255, 463}}) {
        const ResultsLayout::Result r = ResultsLayout::layout(screen, c.failed);
        EXPECT_EQ(r.showsFailures, c.failed > 0);
        EXPECT_EQ(r.listHeight, c.list) << c.failed;
        EXPECT_EQ(r.scrollViewHeight, c.scroll) << c.failed;
        EXPECT_EQ(r.uploadCountLabelY, c.countY) << c.failed;
        EXPECT_EQ(r.imageViewY, c.countY + 30 + 48) << c.failed;
        EXPECT_EQ(r.componentsHeight, c.stack) << c.failed;
        EXPECT_EQ(r.componentsY, (562 - c.stack) * 0.5f) << c.failed;
        if (c.failed > 0) {
            EXPECT_EQ(r.tryAgainButtonY, 54);
            EXPECT_EQ(r.scrollViewY, 102);
            EXPECT_EQ(r.notUploadedLabelY, 105 + c.scroll);
        }
    }
    EXPECT_EQ(ResultsLayout::rowY(6), 156);
}
