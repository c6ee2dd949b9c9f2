#include <gtest/gtest.h>

#include "model/RoundedButtonStyle.h"
#include "model/RoundedViewImages.h"

TEST(RoundedViewImages, GiveThreePartsForEveryTypeButTheNinePartOne) {
    for (int type = 0; type <= 18; ++type) {
        const QStringList images = RoundedViewImages::imagesForType(type);
        ASSERT_EQ(images.size(), type == 2 ? 9 : 3) << type;
        for (const QString& name : images) {
            EXPECT_TRUE(name.startsWith(QLatin1String("background_")) && name.endsWith(".png"))
                << name.toStdString();
        }
    }
    EXPECT_EQ(RoundedViewImages::imagesForType(2).first(),
              "background_textfield_white_big_topleft.png");
    EXPECT_EQ(RoundedViewImages::imagesForType(2).last(),
              "background_textfield_white_big_bottomright.png");
    // The grey-capped field shares its centre and right cap with the white one.
    EXPECT_EQ(
        RoundedViewImages::imagesForType(3),
        QStringList({"background_textfield_grey_left.png", "background_textfield_white_center.png",
                     "background_textfield_white_right.png"}));
    EXPECT_EQ(RoundedViewImages::imagesForType(13).at(1),
              "background_button_gray_center_big_highlighted.png");
    for (const int type : {-1, 19, 100}) {
        EXPECT_TRUE(RoundedViewImages::imagesForType(type).isEmpty()) << type;
    }
}

TEST(RoundedButtonStyle, PairsEachButtonTypeWithItsPanelsAndTitleSize) {
    struct Case {
        int type;
        int normal;
        int pressed;
        int titleSize;
    };
    for (const Case& c : {Case{0, 6, 7, 12}, Case{1, 4, 5, 16}, Case{2, 8, 9, 16},
                          Case{3, 10, 11, 12}, Case{4, 12, 13, 16}}) {
        const auto style = RoundedButtonStyle::forType(c.type);
        ASSERT_TRUE(style.has_value()) << c.type;
        EXPECT_EQ(style->normalBackground, c.normal);
        EXPECT_EQ(style->pressedBackground, c.pressed);
        EXPECT_EQ(style->titleSize, c.titleSize);
    }
    EXPECT_FALSE(RoundedButtonStyle::forType(5).has_value());
    EXPECT_FALSE(RoundedButtonStyle::forType(-1).has_value());
}
