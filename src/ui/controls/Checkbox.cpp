#include "ui/controls/Checkbox.h"

#include <QFontMetricsF>
#include <QPainter>

#include "model/ControlLayout.h"
#include "ui/controls/Fonts.h"
#include "ui/controls/ImageSet.h"

namespace {

constexpr QSize kBoxSize{15, 13};
constexpr qreal kTitleX = 20;

}  // namespace

Checkbox::Checkbox(QWidget* parent) : StyledButton(parent) {
    setCheckable(true);
    setFont(Fonts::helveticaNeue(12));
}

void Checkbox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QString box = isChecked() ? QStringLiteral("checkbox_checked.png")
                                    : QStringLiteral("checkbox_unchecked.png");
    painter.drawPixmap(0, 0, ImageSet::pixmap(box, kBoxSize, devicePixelRatioF()));
    const qreal textHeight = QFontMetricsF(font()).height();
    const QRectF title(kTitleX, ControlLayout::labelY(height(), textHeight), width() - kTitleX,
                       textHeight);
    drawLabelText(painter, title, text(), font(), titleColor(), Qt::AlignLeft);
    drawFocusRing(painter, QRectF(QPointF(0, 0), QSizeF(kBoxSize)).adjusted(-1, -1, 1, 1) & rect(),
                  3);
}
