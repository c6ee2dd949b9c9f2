#include "ui/metadata/TagButton.h"

#include <QFontMetricsF>
#include <QPainter>

#include "model/TagLayout.h"
#include "ui/controls/Fonts.h"
#include "ui/controls/ImageSet.h"
#include "ui/controls/RoundedView.h"
#include "ui/controls/ViewGeometry.h"

namespace {

constexpr int kChipPanel = 6;
constexpr int kPressedChipPanel = 7;

}  // namespace

TagButton::TagButton(QWidget* parent) : StyledButton(parent) {
    setFont(Fonts::helveticaNeue(12));
    setTitleColor(Qt::white);
    setAccessibleDescription(QStringLiteral("Removes the tag"));
    frame_ = {0, 0, 0, TagLayout::kChipHeight};
}

void TagButton::setTitleString(const QString& title) {
    StyledButton::setTitleString(title);
    updateFrames();
}

void TagButton::setFrame(const QRectF& lowerLeftFrame) {
    frame_ = lowerLeftFrame;
    ViewGeometry::setFrame(this, frame_);
}

QString TagButton::shownTitle() const {
    return QFontMetricsF(font()).elidedText(text(), Qt::ElideRight, labelFrame_.width());
}

void TagButton::updateFrames() {
    const QFontMetricsF metrics(font());
    labelFrame_ = TagLayout::labelFrame({metrics.horizontalAdvance(text()), metrics.height()});
    frame_.setWidth(TagLayout::chipWidth(metrics.horizontalAdvance(text())));
    frame_.setHeight(TagLayout::kChipHeight);
    // The size changes, the origin stays.
    setFrame(frame_);
    update();
}

void TagButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    RoundedView::drawPanel(painter, rect(), isDown() ? kPressedChipPanel : kChipPanel);
    drawLabelText(painter, labelFrame_, shownTitle(), font(), titleColor(), Qt::AlignLeft);
    const QRectF mark = TagLayout::deleteImageFrame(frame_.width());
    painter.drawPixmap(mark.topLeft(),
                       ImageSet::pixmap(QStringLiteral("illustration_delete_tag.png"),
                                        mark.size().toSize(), devicePixelRatioF()));
    drawFocusRing(painter, rect(), height() / 2.0);
}
