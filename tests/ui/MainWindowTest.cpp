#include <gtest/gtest.h>

#include "support/ScreenHarness.h"
#include "ui/controls/ImageView.h"
#include "ui/navigation/TitleStrip.h"

TEST(MainWindow, HasTheTitleStripAboveAFixedContentArea) {
    ScreenHarness harness;
    MainWindow& window = *harness.window();
    TitleStrip& strip = *window.titleStrip();
    EXPECT_EQ(strip.height(), 38);
    EXPECT_EQ(strip.width(), MainWindow::kContentSize.width());
    EXPECT_EQ(harness.navigationView().size(), MainWindow::kContentSize);
    EXPECT_EQ(harness.navigationView().mapTo(&window, QPoint(0, 0)).y(),
              strip.mapTo(&window, QPoint(0, 38)).y());

    // The logo is centred by the rounding rule; the buttons' view covers the strip above it.
    EXPECT_EQ(strip.logo()->geometry(), QRect(409, 9, 96, 19));
    EXPECT_EQ(harness.titleBarView()->geometry(), strip.rect());
    EXPECT_EQ(strip.childAt(QPoint(450, 18)), harness.titleBarView());
    EXPECT_EQ(harness.titleBarView()->parentWidget(), &strip);
}
