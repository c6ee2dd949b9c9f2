#include "ui/controls/VerticallyCenteredTextFieldCell.h"

#include <QEvent>
#include <QFontMetricsF>
#include <algorithm>

#include "model/ControlLayout.h"
#include "ui/controls/Fonts.h"

VerticallyCenteredTextFieldCell::VerticallyCenteredTextFieldCell(QWidget* parent)
    : QLineEdit(parent) {
    setFrame(false);
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setStyleSheet(QStringLiteral("background: transparent;"));
    setFont(Fonts::helveticaNeue(14));
    centerText();
}

QRect VerticallyCenteredTextFieldCell::adjustedFrameToVerticallyCenterText(
    const QRect& frame) const {
    return ControlLayout::adjustedFrameToVerticallyCenterText(frame, QFontMetricsF(font()).height())
        .toRect();
}

void VerticallyCenteredTextFieldCell::resizeEvent(QResizeEvent* event) {
    QLineEdit::resizeEvent(event);
    centerText();
}

void VerticallyCenteredTextFieldCell::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        centerText();
    }
}

void VerticallyCenteredTextFieldCell::centerText() {
    const QRect text = adjustedFrameToVerticallyCenterText(rect());
    const int top = std::max(0, text.top());
    const int bottom = std::max(0, height() - 1 - text.bottom());
    if (textMargins().top() != top || textMargins().bottom() != bottom) {
        setTextMargins(textMargins().left(), top, textMargins().right(), bottom);
    }
}
