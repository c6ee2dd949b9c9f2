#include <gtest/gtest.h>

#include "model/RoundedButtonStyle.h"
#include "model/RoundedViewImages.h"

// That the named images exist, at both scales, is the image set's test to show.
TEST(ControlStyles, NinePiecesForTheBigFieldThreeForTheRestAndNoneForUnknownTypes) {
    for (int type = 0; type <= 18; ++type) {
        EXPECT_EQ(RoundedViewImages::imagesForType(type).size(), type == 2 ? 9 : 3) << type;
    }
    for (const int type : {-1, 19, 100}) {
        EXPECT_TRUE(RoundedViewImages::imagesForType(type).isEmpty()) << type;
    }
    // A button given a type it does not know keeps the look it has.
    EXPECT_TRUE(RoundedButtonStyle::forType(4).has_value());
    EXPECT_FALSE(RoundedButtonStyle::forType(5).has_value());
    EXPECT_FALSE(RoundedButtonStyle::forType(-1).has_value());
}
