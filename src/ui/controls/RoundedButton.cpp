#include "ui/controls/RoundedButton.h"

#include <QFontMetricsF>
#include <QPainter>

#include "model/ControlLayout.h"
#include "model/RoundedButtonStyle.h"
#include "ui/controls/Fonts.h"
#include "ui/controls/RoundedView.h"

RoundedButton::RoundedButton(QWidget* parent) : StyledButton(parent) {
    setType(0);
    setTitleColor(Qt::white);
}

void RoundedButton::setType(int type) {
    const auto style = RoundedButtonStyle::forType(type);
    if (!style) {
        return;
    }
    type_ = type;
    normalBackground_ = style->normalBackground;
    pressedBackground_ = style->pressedBackground;
    setFont(Fonts::helveticaNeueBold(style->titleSize));
    update();
}

void RoundedButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    RoundedView::drawPanel(painter, rect(), isDown() ? pressedBackground_ : normalBackground_);
    const QRectF title = ControlLayout::titleRectForBounds(rect(), QFontMetricsF(font()).height());
    drawLabelText(painter, title, text(), font(), titleColor(), Qt::AlignHCenter);
    drawFocusRing(painter, rect(), height() / 2.0);
}
