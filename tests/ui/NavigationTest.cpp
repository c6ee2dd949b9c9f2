#include <gtest/gtest.h>

#include <QPointer>
#include <QTest>

#include "support/RecordingScreen.h"
#include "support/ScreenHarness.h"
#include "ui/controls/ButtonWithIcon.h"

namespace {

class Navigation : public testing::Test {
protected:
    RecordingScreen* screen() { return BaseViewController::create<RecordingScreen>(&harness); }
    RecordingScreen* rootScreen() {
        RecordingScreen* root = screen();
        harness.window()->navigationViewController()->setViewController(root);
        return root;
    }
    M3NavigationView& view() { return harness.navigationView(); }

    ScreenHarness harness;
};

}  // namespace

TEST_F(Navigation, TwoQuickAnimatedPushesLeaveOnlyTheLastViewAndPoppingToTheRootOnlyIt) {
    RecordingScreen* root = rootScreen();
    QPointer<RecordingScreen> second = screen();
    QPointer<RecordingScreen> third = screen();
    root->pushViewController(second, true);
    second->pushViewController(third, true);
    EXPECT_EQ(view().currentViewController(), third);
    ASSERT_TRUE(harness.waitForSlides());

    EXPECT_EQ(view().subviews(), QList<QWidget*>{third});
    EXPECT_EQ(third->pos(), QPoint(0, 0));
    EXPECT_EQ(third->size(), view().size());
    EXPECT_EQ(view().viewStack().size(), 3);
    EXPECT_EQ(view().prevViewController(), nullptr);
    // The first slide was cut short: only the second one's screens hear that it finished.
    EXPECT_EQ(root->calls, QStringList({"willStartAnimating"}));
    EXPECT_EQ(second->calls, QStringList({"willStartAnimating", "activateView",
                                          "willStartAnimating", "didFinishAnimating"}));
    EXPECT_EQ(third->calls,
              QStringList({"willStartAnimating", "activateView", "didFinishAnimating"}));

    root->calls.clear();
    third->popToViewControllerWithIndex(0, true);
    EXPECT_EQ(view().viewStack(), QList<BaseViewController*>{root});
    EXPECT_EQ(root->calls, QStringList({"willStartAnimating", "activateView"}));
    EXPECT_EQ(view().prevViewController(), third);
    ASSERT_TRUE(harness.waitForSlides());
    EXPECT_EQ(view().subviews(), QList<QWidget*>{root});
    EXPECT_TRUE(QTest::qWaitFor([&] { return second.isNull() && third.isNull(); }));
    EXPECT_EQ(root->calls.last(), "didFinishAnimating");
}

TEST_F(Navigation, PoppingTheRootShowsNothingNew) {
    RecordingScreen* root = rootScreen();
    root->popViewControllerAnimated(true);
    EXPECT_EQ(view().viewStack().size(), 1);
    EXPECT_FALSE(view().isAnimating());
    EXPECT_TRUE(root->calls.isEmpty());  // installing the root does not activate it
}

TEST_F(Navigation, ANonAnimatedPushKeepsTheOldViewOutOfSightAndTheBackButtonPopsOnce) {
    RecordingScreen* root = rootScreen();
    RecordingScreen* second = screen();
    RecordingScreen* third = screen();
    root->pushViewController(second, false);
    EXPECT_EQ(view().subviews(), QList<QWidget*>({root, second}));
    EXPECT_EQ(root->pos(), QPoint(-view().width(), 0));
    EXPECT_EQ(view().prevViewController(), root);
    EXPECT_FALSE(view().isAnimating());

    second->pushViewController(third, false);
    third->addBackButton();
    QPointer<ButtonWithIcon> back = third->backButton();
    ASSERT_NE(back, nullptr);
    EXPECT_EQ(back->parentWidget(), harness.titleBarView());
    EXPECT_EQ(back->titleString(), "Back");

    QTest::mouseClick(back, Qt::LeftButton);
    EXPECT_FALSE(back->isActionEnabled());
    EXPECT_EQ(view().currentViewController(), second);
    QTest::mouseClick(back, Qt::LeftButton);
    EXPECT_EQ(view().currentViewController(), second);
    ASSERT_TRUE(harness.waitForSlides());
    EXPECT_EQ(view().subviews(), QList<QWidget*>{second});
    EXPECT_EQ(root->parentWidget(), nullptr);  // off screen but still on the stack
    EXPECT_EQ(view().viewStack().size(), 2);

    second->removeViewsFromTitleBar();
    EXPECT_TRUE(back.isNull() || back->parentWidget() == nullptr);
    EXPECT_TRUE(harness.titleBarView()->findChildren<QWidget*>().isEmpty());
}

// An alert with a receiver ends the one on show; a plain one leaves it.
TEST_F(Navigation, ASecondAlertWithAReceiverEndsTheFirst) {
    RecordingScreen* root = rootScreen();
    int firstEnded = 0;
    int secondEnded = 0;
    root->showAlertWithMessage(QStringLiteral("First"), [&] { ++firstEnded; });
    QPointer<QMessageBox> first = root->alert();
    ASSERT_NE(first, nullptr);
    EXPECT_TRUE(first->isVisible());

    root->showAlertWithMessage(QStringLiteral("Second"), [&] { ++secondEnded; });
    QPointer<QMessageBox> second = root->alert();
    ASSERT_NE(second, first);
    EXPECT_TRUE(QTest::qWaitFor([&] { return first.isNull(); }));
    EXPECT_TRUE(second->isVisible());
    EXPECT_EQ(second->text(), "Second");
    root->showAlertWithMessage(QStringLiteral("Plain"));
    ASSERT_NE(root->alert(), second);
    EXPECT_TRUE(root->alert()->isVisible());
    EXPECT_TRUE(second->isVisible());

    QTest::keyClick(second, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return second.isNull(); }));
    EXPECT_EQ(firstEnded, 0);
    EXPECT_EQ(secondEnded, 1);
}
