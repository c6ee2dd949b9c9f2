#include "ui/controls/ButtonWithIcon.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

#include "model/ControlLayout.h"
#include "ui/controls/ImageSet.h"

namespace {

constexpr int kIconSide = 26;
constexpr qreal kTitleX = 30;

}  // namespace

ButtonWithIcon::ButtonWithIcon(QWidget* parent) : StyledButton(parent) {}

void ButtonWithIcon::setIconName(const QString& imageName) {
    iconName_ = imageName;
    update();
}

void ButtonWithIcon::setHighlightedIconName(const QString& imageName) {
    highlightedIconName_ = imageName;
    update();
}

void ButtonWithIcon::setTitleString(const QString& title) {
    StyledButton::setTitleString(title);
    const qreal titleWidth = std::ceil(QFontMetricsF(font()).horizontalAdvance(title));
    const qreal width = ControlLayout::iconButtonWidth(this->width(), titleWidth);
    resize(static_cast<int>(std::ceil(width)), height());
}

void ButtonWithIcon::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QString& icon = isDown() ? highlightedIconName_ : iconName_;
    if (!icon.isEmpty()) {
        painter.drawPixmap(
            0, 0, ImageSet::pixmap(icon, QSize(kIconSide, kIconSide), devicePixelRatioF()));
    }
    const qreal textHeight = QFontMetricsF(font()).height();
    const QRectF title(kTitleX, ControlLayout::labelY(height(), textHeight), width() - kTitleX,
                       textHeight);
    drawLabelText(painter, title, text(), font(), titleColor(), Qt::AlignLeft);
    drawFocusRing(painter, rect(), 6);
}
