#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>

#include "ui/controls/RoundedButton.h"
#include "ui/controls/RoundedView.h"
#include "ui/controls/VerticallyCenteredTextFieldCell.h"
#include "ui/controls/ViewGeometry.h"
#include "ui/metadata/CreditsView.h"
#include "ui/metadata/InputView.h"
#include "ui/metadata/TagButton.h"
#include "ui/metadata/TagsView.h"
#include "ui/metadata/TagsViewDelegate.h"

namespace {

// Top edge of a view at y 154 in a 300-high parent.
constexpr qreal kTopEdge = 154;

class Tags : public testing::Test, public TagsViewDelegate {
protected:
    Tags() {
        parent.resize(400, 300);
        tags = new TagsView(&parent);
        ViewGeometry::setFrame(tags, {10, kTopEdge - 54, 320, 54});
        tags->setDelegate(this);
        parent.show();
    }

    void tagsViewDidChangeFrame() override { ++frameChanges; }

    void type(const QString& text) {
        tags->tagTextField()->setText(text);
        QTest::keyClick(tags->tagTextField(), Qt::Key_Return);
    }
    QRectF frame() const { return ViewGeometry::frame(tags); }
    QRectF chip(qsizetype index) const { return tags->tagButtons().at(index)->frame(); }

    QWidget parent;
    TagsView* tags;
    int frameChanges = 0;
};

}  // namespace

TEST_F(Tags, TheFirstTagAddsARowAndSitsJustBelowTheEntryField) {
    type(QStringLiteral("  holiday \n"));
    EXPECT_EQ(tags->tags(), QStringList{"holiday"});
    EXPECT_TRUE(tags->tagTextField()->text().isEmpty());
    EXPECT_EQ(frame(), QRectF(10, kTopEdge - 90, 320, 90));
    EXPECT_EQ(frameChanges, 1);
    const qreal entryY = ViewGeometry::frame(tags->tagTextFieldBackground()).y();
    EXPECT_EQ(chip(0).topLeft(), QPointF(0, entryY - 36));

    // Empty field: nothing; the "Add" button adds like Return.
    QTest::mouseClick(tags->addButton(), Qt::LeftButton);
    EXPECT_EQ(tags->tagButtons().size(), 1);
    tags->tagTextField()->setText(QStringLiteral("beach"));
    QTest::mouseClick(tags->addButton(), Qt::LeftButton);
    EXPECT_EQ(tags->tags(), (QStringList{"holiday", "beach"}));
    EXPECT_EQ(frameChanges, 1);
}

// Reflowing across row ends is the tag layout's test; here the view follows it.
TEST_F(Tags, ALongTagWrapsOntoANewRowThatGoesOnceTheFirstRowHasRoom) {
    type(QStringLiteral("short"));
    type(QString(120, QLatin1Char('w')));
    TagButton* long_ = tags->tagButtons().at(1);
    EXPECT_TRUE(long_->shownTitle().endsWith(QChar(0x2026)));
    EXPECT_EQ(chip(1).topLeft(), QPointF(0, 0));
    EXPECT_EQ(chip(0).y(), 36);
    EXPECT_EQ(frame().height(), 126);
    EXPECT_EQ(frame().y() + frame().height(), kTopEdge);
    const int changes = frameChanges;

    QTest::mouseClick(tags->tagButtons().at(0), Qt::LeftButton);
    ASSERT_EQ(tags->tagButtons(), QList<TagButton*>{long_});
    EXPECT_EQ(frame().height(), 90);
    EXPECT_EQ(frameChanges, changes + 1);
    EXPECT_EQ(chip(0).topLeft(), QPointF(0, 0));
    EXPECT_EQ(tags->tags(), QStringList{QString(120, QLatin1Char('w'))});

    // Emptied, the view goes back to the bare entry field.
    tags->clearView();
    EXPECT_TRUE(tags->tagButtons().isEmpty());
    EXPECT_TRUE(tags->tags().isEmpty());
    EXPECT_EQ(frame(), QRectF(10, kTopEdge - 54, 320, 54));
}

TEST_F(Tags, DeletingOneOfTwoSameTagsKeepsTheOtherChipButNotTheText) {
    type(QStringLiteral("same"));
    type(QStringLiteral("same"));
    type(QStringLiteral("other"));
    TagButton* second = tags->tagButtons().at(1);
    TagButton* other = tags->tagButtons().at(2);
    QTest::mouseClick(tags->tagButtons().at(0), Qt::LeftButton);
    EXPECT_EQ(tags->tagButtons(), (QList<TagButton*>{second, other}));
    EXPECT_EQ(chip(0).x(), 0);
    EXPECT_EQ(tags->tags(), QStringList{"other"});
}

TEST(CreditsView, StacksOneInputPerCreditUnderItsTitle) {
    QWidget parent;
    parent.resize(400, 300);
    auto* view = new CreditsView(&parent);
    ViewGeometry::setFrame(view, {20, kTopEdge - 46, 302, 46});
    parent.show();
    CreditList credits;
    for (const char* name : {"Director", "Camera", "Editor"}) {
        credits.append(std::make_shared<Credit>());
        credits.last()->name = QLatin1String(name);
    }
    view->setCredits(credits);

    const qreal titleHeight = view->titleTextField()->height();
    EXPECT_EQ(ViewGeometry::frame(view),
              QRectF(20, kTopEdge - titleHeight - 138, 302, titleHeight + 138));
    EXPECT_EQ(ViewGeometry::frame(view->titleTextField()).y(), 138);
    ASSERT_EQ(view->creditInputViews().size(), 3);
    for (qsizetype i = 0; i < 3; ++i) {
        InputView* input = view->creditInputViews().at(i);
        EXPECT_EQ(ViewGeometry::frame(input), QRectF(0, 138 - 46 * (i + 1), 302, 32));
        EXPECT_EQ(input->placeholder(), credits.at(i)->name);
        EXPECT_EQ(input->textField()->geometry(), QRect(13, 6, 276, 20));
    }
    EXPECT_TRUE(view->placeholderTextField()->isHidden());
    QTest::keyClicks(view->creditInputViews().at(1)->textField(), QStringLiteral("Ann Lee"));
    EXPECT_EQ(view->creditsWithValues().at(1)->stringValue, "Ann Lee");

    view->clearView();
    const QRectF placeholder = ViewGeometry::frame(view->placeholderTextField());
    EXPECT_TRUE(view->creditInputViews().isEmpty());
    EXPECT_FALSE(view->placeholderTextField()->isHidden());
    EXPECT_EQ(placeholder.y() + placeholder.height(),
              ViewGeometry::frame(view->titleTextField()).y() - 14);
    EXPECT_EQ(ViewGeometry::frame(view).height(), titleHeight + placeholder.height() + 14);

    view->setCredits(CreditList{});
    EXPECT_EQ(ViewGeometry::frame(view).height(), titleHeight);
    EXPECT_EQ(ViewGeometry::frame(view).y() + titleHeight, kTopEdge);
}
