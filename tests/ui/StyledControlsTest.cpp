#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QSignalSpy>
#include <QTest>

#include "model/RoundedViewImages.h"
#include "ui/controls/ButtonWithIcon.h"
#include "ui/controls/ButtonWithImage.h"
#include "ui/controls/Checkbox.h"
#include "ui/controls/ImageSet.h"
#include "ui/controls/RoundedButton.h"
#include "ui/controls/RoundedView.h"

TEST(RoundedButton, HighlightsOnPressAndSendsOnReleaseWhereverThePointerIs) {
    RoundedButton button;
    button.setGeometry(0, 0, 160, 40);
    button.setType(1);
    button.setTitleString(QStringLiteral("Show in Finder"));
    QSignalSpy triggered(&button, &StyledButton::triggered);

    QTest::mousePress(&button, Qt::LeftButton, {}, {10, 10});
    EXPECT_TRUE(button.isHighlighted());
    QTest::mouseRelease(&button, Qt::LeftButton, {}, QPoint(-40, -40));  // outside
    EXPECT_FALSE(button.isHighlighted());
    EXPECT_EQ(triggered.size(), 1);

    // With its action disabled it still highlights and looks the same, but sends nothing.
    button.setActionEnabled(false);
    QTest::mousePress(&button, Qt::LeftButton, {}, {10, 10});
    EXPECT_TRUE(button.isHighlighted());
    QTest::mouseRelease(&button, Qt::LeftButton, {}, {10, 10});
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_EQ(triggered.size(), 1);
    EXPECT_TRUE(button.isEnabled());
}

TEST(StyledButtons, ArePressedFromTheKeyboardAndNamedByTheirTitle) {
    RoundedButton rounded;
    rounded.setTitleString(QStringLiteral("Encode files"));
    Checkbox checkbox;
    checkbox.setTitleString(QStringLiteral("Preserve original"));
    for (StyledButton* button : std::initializer_list<StyledButton*>{&rounded, &checkbox}) {
        QSignalSpy triggered(button, &StyledButton::triggered);
        QTest::keyClick(button, Qt::Key_Space);
        QTest::keyClick(button, Qt::Key_Return);
        QTest::keyClick(button, Qt::Key_Enter);
        EXPECT_EQ(triggered.size(), 3) << button->text().toStdString();
        EXPECT_EQ(QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name),
                  button->text());
        EXPECT_TRUE(button->focusPolicy() & Qt::TabFocus);
    }
}

TEST(StyledButtons, RingTheFocusOnlyWhenItCameFromTheKeyboard) {
    QWidget window;
    auto* button = new RoundedButton(&window);
    button->setGeometry(10, 10, 160, 40);
    button->setType(3);
    window.show();
    QApplication::setActiveWindow(&window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const QImage plain = button->grab().toImage();

    button->setFocus(Qt::ActiveWindowFocusReason);
    ASSERT_TRUE(button->hasFocus());
    EXPECT_EQ(button->grab().toImage(), plain);
    // Tab to the window's only control keeps the focus where it is, and shows it.
    QTest::keyClick(button, Qt::Key_Tab);
    EXPECT_NE(button->grab().toImage(), plain);
    button->clearFocus();
    button->setFocus(Qt::TabFocusReason);
    EXPECT_NE(button->grab().toImage(), plain);
}

TEST(ButtonWithImage, WithDisableAfterSelectedActsOnce) {
    ButtonWithImage button;
    button.resize(18, 18);
    button.setNormalImage(QStringLiteral("button_delete_file.png"));
    button.setHighlightedImage(QStringLiteral("button_delete_file_highlighted.png"));
    button.setSelectedImage(QStringLiteral("checkbox_checked.png"));
    button.setDisableAfterSelected(true);
    QSignalSpy triggered(&button, &StyledButton::triggered);

    QTest::mousePress(&button, Qt::LeftButton);
    EXPECT_EQ(button.shownImage(), "button_delete_file_highlighted.png");
    QTest::mouseRelease(&button, Qt::LeftButton);
    EXPECT_TRUE(button.isSelected());
    EXPECT_EQ(button.shownImage(), "checkbox_checked.png");
    EXPECT_EQ(triggered.size(), 1);

    QTest::mousePress(&button, Qt::LeftButton);
    EXPECT_FALSE(button.isHighlighted());
    QTest::mouseRelease(&button, Qt::LeftButton);
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_EQ(triggered.size(), 1);
    EXPECT_EQ(button.shownImage(), "checkbox_checked.png");
}

TEST(ButtonWithIcon, WidensForALongTitleAndKeepsThatWidth) {
    ButtonWithIcon button;
    button.setGeometry(0, 0, 100, 26);
    button.setTitleString(QStringLiteral("Back"));
    EXPECT_EQ(button.width(), 100);
    button.setTitleString(QStringLiteral("A title far too long for a hundred points"));
    const int wide = button.width();
    EXPECT_GT(wide, 100);
    const int textWidth = QFontMetrics(button.titleFont()).horizontalAdvance(button.titleString());
    EXPECT_GE(wide, textWidth + 35);
    button.setTitleString(QStringLiteral("Back"));
    EXPECT_EQ(button.width(), wide);
}

// A checkbox, and an image button without disableAfterSelected.
TEST(SelectableButtons, EveryClickTogglesTheSelectionAndSends) {
    ButtonWithImage image;
    image.setNormalImage(QStringLiteral("button_source_local.png"));
    image.setSelectedImage(QStringLiteral("button_source_local_selected.png"));
    Checkbox checkbox;
    checkbox.resize(120, 15);
    const auto clickTwice = [](auto& button) {
        QSignalSpy triggered(&button, &StyledButton::triggered);
        QTest::mouseClick(&button, Qt::LeftButton);
        EXPECT_TRUE(button.isSelected());
        QTest::mouseClick(&button, Qt::LeftButton);
        EXPECT_FALSE(button.isSelected());
        EXPECT_EQ(triggered.size(), 2);
    };
    clickTwice(image);
    clickTwice(checkbox);
    EXPECT_EQ(image.shownImage(), "button_source_local.png");
}

TEST(ImageSet, HoldsEveryImageAndEveryRoundedPieceAtBothScales) {
    ASSERT_TRUE(ImageSet::contains(QStringLiteral("icon_home.png")));
    QStringList names = QDir(QStringLiteral(":/images")).entryList({QStringLiteral("*.png")});
    names.removeIf([](const QString& name) { return name.endsWith(QStringLiteral("@2x.png")); });
    EXPECT_GT(names.size(), 20);
    for (int type = 0; type <= 18; ++type) {
        names << RoundedViewImages::imagesForType(type);
    }
    for (const QString& name : names) {
        const QPixmap single = ImageSet::pixmap(name, 1);
        const QPixmap twice = ImageSet::pixmap(name, 2);
        ASSERT_FALSE(single.isNull()) << name.toStdString();
        EXPECT_EQ(twice.size(), single.size() * 2) << name.toStdString();
        EXPECT_EQ(twice.deviceIndependentSize(), single.deviceIndependentSize());
    }
}

TEST(RoundedView, DrawsTheImagesOfTheScreensPixelRatioAsTheyAreAndNothingForAnUnknownType) {
    // Run by ctest at 1x and at QT_SCALE_FACTOR=2: the cap must be the image's own pixels.
    RoundedView view;
    view.resize(200, 40);
    const qreal ratio = view.devicePixelRatioF();
    const auto render = [&view, ratio](int type) {
        view.setType(type);
        QImage image(view.size() * ratio, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::transparent);
        view.render(&image, {}, {}, QWidget::DrawChildren);
        return image;
    };
    const QImage drawn = render(4);
    const QImage cap = ImageSet::pixmap(RoundedViewImages::imagesForType(4).first(), ratio)
                           .toImage()
                           .convertToFormat(drawn.format());
    EXPECT_EQ(drawn.copy(QRect(QPoint(0, 0), cap.size())), cap);
    EXPECT_GT(drawn.pixelColor(drawn.rect().center()).blue(), 200);

    QImage untouched(drawn.size(), drawn.format());
    untouched.setDevicePixelRatio(ratio);
    untouched.fill(Qt::transparent);
    EXPECT_EQ(render(19), untouched);
}
