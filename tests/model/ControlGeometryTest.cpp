#include <gtest/gtest.h>

#include "model/ControlLayout.h"
#include "model/LowerLeftGeometry.h"
#include "model/TitleBarLayout.h"

TEST(LowerLeftGeometry, FlipsRectanglesWithinTheirParent) {
    struct Case {
        QRectF lowerLeft;
        qreal parentHeight;
        QRect qt;
    };
    const Case cases[] = {
        {{91, 4, 100, 26}, 38, {91, 8, 100, 26}},       // the back button in the title strip
        {{410, 275, 30, 30}, 562, {410, 257, 30, 30}},  // a view high up
        {{0, 0, 10, 10}, 0, {0, -10, 10, 10}},          // no parent yet
        {{0.5, 1.5, 10, 2.25}, 20, {1, 16, 10, 3}},     // fractions: edges rounded one by one
    };
    for (const Case& c : cases) {
        EXPECT_EQ(LowerLeftGeometry::toQt(c.lowerLeft, c.parentHeight), c.qt) << c.parentHeight;
    }
    EXPECT_EQ(LowerLeftGeometry::fromQt({410, 257, 30, 30}, 562), QRectF(410, 275, 30, 30));
}

TEST(TitleBarLayout, CentresTheLogoRoundingHalvesAwayFromZeroAndKeepsTheUserButtonInside) {
    EXPECT_EQ(TitleBarLayout::logoOrigin({400, 38}), QPointF(152, 10));  // y 9.5 goes up
    EXPECT_EQ(TitleBarLayout::logoOrigin({401, 38}), QPointF(153, 10));  // x 152.5 goes up
    EXPECT_EQ(TitleBarLayout::logoOrigin({914, 38}), QPointF(409, 10));
    EXPECT_EQ(TitleBarLayout::logoOrigin({50, 38}), QPointF(-23, 10));  // -23 exactly
    EXPECT_EQ(TitleBarLayout::logoOrigin({91, 10}), QPointF(-3, -5));   // -2.5, -4.5 go down

    // The user button ends at the strip's right margin and never leaves the strip.
    EXPECT_EQ(TitleBarLayout::userButtonFrame({914, 38}, 100), QRectF(802, 4, 100, 26));
    EXPECT_EQ(TitleBarLayout::userButtonFrame({80, 38}, 100), QRectF(0, 4, 100, 26));
}

TEST(ControlLayout, PlacesTitlesByTheirRules) {
    // floor((height - text) * 0.5 - 3.5)
    EXPECT_EQ(ControlLayout::titleRectForBounds({5, 0, 120, 40}, 19), QRectF(5, 7, 120, 40));
    EXPECT_EQ(ControlLayout::titleRectForBounds({0, 0, 80, 26}, 14.4), QRectF(0, 2, 80, 26));
    EXPECT_EQ(ControlLayout::titleRectForBounds({0, 0, 80, 10}, 14), QRectF(0, -6, 80, 10));
    // (height - text) * 0.5 - 3, unrounded
    EXPECT_DOUBLE_EQ(ControlLayout::labelY(26, 15), 2.5);
    EXPECT_DOUBLE_EQ(ControlLayout::labelY(13, 15), -4);
    // floor((height - line) * 0.5) off the top and the bottom
    EXPECT_EQ(ControlLayout::adjustedFrameToVerticallyCenterText({0, 0, 276, 20}, 17),
              QRectF(0, 1, 276, 18));
    EXPECT_EQ(ControlLayout::adjustedFrameToVerticallyCenterText({0, 10, 50, 32}, 17),
              QRectF(0, 17, 50, 18));
}
