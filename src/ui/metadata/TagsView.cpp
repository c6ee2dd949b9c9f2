#include "ui/metadata/TagsView.h"

#include "model/TagLayout.h"
#include "model/TrimmingAdditions.h"
#include "ui/controls/Fonts.h"
#include "ui/controls/ViewGeometry.h"
#include "ui/metadata/TagButton.h"
#include "ui/metadata/TagsViewDelegate.h"
#include "ui_TagsView.h"

TagsView::TagsView(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::TagsView>()) {
    ui_->setupUi(this);
    ui_->titleTextField->setFont(Fonts::helveticaNeueBold(13));
    ui_->titleTextField->setStyleSheet(QStringLiteral("color: #666666;"));
    ui_->tagTextFieldBackground->setType(0);
    ui_->tagTextField->setFont(Fonts::helveticaNeue(13));
    ui_->addButton->setType(0);
    ui_->addButton->setTitleString(QStringLiteral("Add"));
    connect(ui_->addButton, &RoundedButton::triggered, this, &TagsView::addTagsButtonDidTouch);
    connect(ui_->tagTextField, &QLineEdit::returnPressed, this, &TagsView::addTagsButtonDidTouch);
}

TagsView::~TagsView() = default;

QLabel* TagsView::titleTextField() const { return ui_->titleTextField; }

VerticallyCenteredTextFieldCell* TagsView::tagTextField() const { return ui_->tagTextField; }

RoundedView* TagsView::tagTextFieldBackground() const { return ui_->tagTextFieldBackground; }

RoundedButton* TagsView::addButton() const { return ui_->addButton; }

qreal TagsView::entryBackgroundY() const {
    return ViewGeometry::frame(ui_->tagTextFieldBackground).y();
}

void TagsView::addTagsButtonDidTouch() {
    const QString typed = ui_->tagTextField->text();
    if (typed.isEmpty()) {
        return;
    }
    const QString tag = TrimmingAdditions::stringByTrimmingLeadingCharactersInSet(
        TrimmingAdditions::stringByTrimmingTrailingCharactersInSet(
            typed, TrimmingAdditions::whitespaceAndNewlines),
        TrimmingAdditions::whitespaceAndNewlines);

    QPointF origin;
    if (!tagButtons_.isEmpty()) {
        origin = TagLayout::originAfter(tagButtons_.last()->frame());
    } else {
        addNewRow();
        origin = {0, TagLayout::firstRowY(entryBackgroundY())};
    }
    // Not among the chips until placed: a row added for it moves the others, not this one.
    auto* chip = new TagButton(this);
    chip->setFrame({origin, QSizeF(0, TagLayout::kChipHeight)});
    chip->setTitleString(tag);
    connect(chip, &TagButton::triggered, this, [this, chip] { deleteTagButton(chip); });
    if (TagLayout::overflows(chip->frame(), width())) {
        addNewRow();
        origin.setX(0);
    }
    chip->setFrame({origin, chip->frame().size()});
    chip->show();
    tagButtons_.append(chip);
    tags_.append(tag);
    ui_->tagTextField->clear();
}

void TagsView::deleteTagButton(TagButton* chip) {
    const qsizetype index = tagButtons_.indexOf(chip);
    if (index < 0) {
        return;
    }
    const bool hadFocus = chip->hasFocus();
    tagButtons_.removeAt(index);
    tags_.removeAll(chip->titleString());
    chip->hide();
    chip->deleteLater();
    if (hadFocus) {
        ui_->tagTextField->setFocus(Qt::OtherFocusReason);
    }
    refreshTagButtonFramesFromIndex(index);
}

void TagsView::refreshTagButtonFramesFromIndex(qsizetype index) {
    QList<QRectF> frames;
    for (const TagButton* chip : tagButtons_) {
        frames.append(chip->frame());
    }
    frames = TagLayout::reflow(frames, index, width(), entryBackgroundY());
    for (qsizetype i = 0; i < tagButtons_.size(); ++i) {
        tagButtons_.at(i)->setFrame(frames.at(i));
    }
    if (TagLayout::bottomRowIsEmpty(frames)) {
        removeRow();
    }
    // An empty view goes back to the bare entry field, so adding and removing a tag again and
    // again does not leave it ever taller.
    while (tagButtons_.isEmpty() && rows_ > 0) {
        removeRow();
    }
}

void TagsView::addNewRow() {
    ++rows_;
    changeHeightBy(1);
}

void TagsView::removeRow() {
    --rows_;
    changeHeightBy(-1);
}

// Chips keep their place relative to the top edge: their lower-left y moves with the height.
void TagsView::changeHeightBy(qreal rows) {
    const qreal change = rows * TagLayout::kRowHeight;
    const QRectF frame = ViewGeometry::frame(this);
    ViewGeometry::setFrame(this, frame.adjusted(0, -change, 0, 0));
    for (TagButton* chip : tagButtons_) {
        chip->setFrame(chip->frame().translated(0, change));
    }
    if (delegate_ != nullptr) {
        delegate_->tagsViewDidChangeFrame();
    }
}

void TagsView::clearView() {
    ui_->tagTextField->clear();
    for (qsizetype i = tagButtons_.size() - 1; i >= 0; --i) {
        deleteTagButton(tagButtons_.at(i));
    }
    tagButtons_.clear();
    tags_.clear();
}
