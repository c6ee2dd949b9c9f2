#include <gtest/gtest.h>

#include "model/TagLayout.h"

TEST(TagLayout, SizesAChipToItsTextUpToTheLongLabel) {
    struct Case {
        qreal textWidth;
        qreal labelWidth;
        qreal chipWidth;
    };
    const Case cases[] = {
        {40, 45, 85},       // text + 5, then + 10 + 12 + 12 + 6
        {260, 265, 305},    // the longest text that still fits whole
        {260.5, 265, 305},  // longer tags stop growing
    };
    for (const Case& c : cases) {
        EXPECT_DOUBLE_EQ(TagLayout::labelWidth(c.textWidth), c.labelWidth) << c.textWidth;
        EXPECT_DOUBLE_EQ(TagLayout::chipWidth(c.textWidth), c.chipWidth) << c.textWidth;
    }
    EXPECT_EQ(TagLayout::labelFrame({40, 15}), QRectF(10, 2.5, 45, 15));
}

TEST(TagLayout, ReflowsFromTheIndexAcrossRowEnds) {
    // A 320-wide view whose entry background sits at y 72: rows at y 36 and y 0.
    const QList<QRectF> before{{0, 36, 100, 26}, {220, 36, 100, 26}, {0, 0, 150, 26}};
    // The chip at x 110 was deleted: the next one moves left, the last no longer fits after it.
    EXPECT_EQ(TagLayout::reflow(before, 1, 320, 72),
              (QList<QRectF>{{0, 36, 100, 26}, {110, 36, 100, 26}, {0, 0, 150, 26}}));
    EXPECT_FALSE(TagLayout::bottomRowIsEmpty(TagLayout::reflow(before, 1, 320, 72)));

    // The first chip was deleted: everything moves up a place and the bottom row empties.
    const QList<QRectF> rest{{110, 36, 100, 26}, {220, 36, 100, 26}, {0, 0, 90, 26}};
    const QList<QRectF> after = TagLayout::reflow(rest, 0, 320, 72);
    EXPECT_EQ(after, (QList<QRectF>{{0, 36, 100, 26}, {110, 36, 100, 26}, {220, 36, 90, 26}}));
    EXPECT_TRUE(TagLayout::bottomRowIsEmpty(after));
    EXPECT_FALSE(TagLayout::bottomRowIsEmpty({}));

    // A chip ending exactly at the edge fits; x is kept in single precision.
    EXPECT_FALSE(TagLayout::overflows({220, 0, 100, 26}, 320));
    EXPECT_TRUE(TagLayout::overflows({220.5, 0, 100, 26}, 320));
    EXPECT_EQ(TagLayout::originAfter({0, 36, 85.3, 26}).x(), static_cast<qreal>(85.3f + 10.0f));
}
