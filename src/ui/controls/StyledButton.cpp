#include "ui/controls/StyledButton.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "model/ControlLayout.h"

namespace {

const QColor kFocusRingColor(0x00, 0xa9, 0xe8);
constexpr qreal kFocusRingWidth = 2;
// A white line inside the ring keeps it visible on the blue buttons.
constexpr qreal kFocusRingLining = 1;

bool isEnter(const QKeyEvent* event) {
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

// Enter presses a button as Space does; the base class knows Space and Select only.
QKeyEvent asSelect(const QKeyEvent* event) {
    return QKeyEvent(event->type(), Qt::Key_Select, event->modifiers(), QString(),
                     event->isAutoRepeat());
}

}  // namespace

StyledButton::StyledButton(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover, false);
    connect(this, &QAbstractButton::clicked, this, &StyledButton::pressEnded);
}

void StyledButton::setTitleString(const QString& title) {
    setText(title);
    update();
}

void StyledButton::setTitleColor(const QColor& color) {
    titleColor_ = color;
    update();
}

void StyledButton::setTitleFont(const QFont& font) {
    setFont(font);
    update();
}

void StyledButton::pressEnded() {
    if (actionEnabled_) {
        emit triggered();
    }
}

QSize StyledButton::sizeHint() const { return size(); }

bool StyledButton::hitButton(const QPoint&) const {
    // A drawn button acts on release without checking where the pointer went.
    return true;
}

void StyledButton::mousePressEvent(QMouseEvent* event) {
    if (!acceptsPress()) {
        event->accept();
        return;
    }
    QAbstractButton::mousePressEvent(event);
}

void StyledButton::keyPressEvent(QKeyEvent* event) {
    const bool pressKey = isEnter(event) || event->key() == Qt::Key_Space;
    if (pressKey && !acceptsPress()) {
        event->accept();
        return;
    }
    if (isEnter(event)) {
        QKeyEvent select = asSelect(event);
        QAbstractButton::keyPressEvent(&select);
        event->setAccepted(select.isAccepted());
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

void StyledButton::keyReleaseEvent(QKeyEvent* event) {
    if (isEnter(event)) {
        QKeyEvent select = asSelect(event);
        QAbstractButton::keyReleaseEvent(&select);
        event->setAccepted(select.isAccepted());
        return;
    }
    QAbstractButton::keyReleaseEvent(event);
}

bool StyledButton::event(QEvent* event) {
    const bool handled = QAbstractButton::event(event);
    if (event->type() == QEvent::KeyPress && hasFocus() && !focusFromKeyboard_) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        // Tab to the only control there is keeps the focus without a new focus event; the
        // keyboard is in use all the same.
        if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
            focusFromKeyboard_ = true;
            update();
        }
    }
    return handled;
}

void StyledButton::focusInEvent(QFocusEvent* event) {
    QAbstractButton::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
        focusFromKeyboard_ = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                             reason == Qt::ShortcutFocusReason;
    }
    update();
}

void StyledButton::focusOutEvent(QFocusEvent* event) {
    QAbstractButton::focusOutEvent(event);
    update();
}

void StyledButton::drawFocusRing(QPainter& painter, const QRectF& shape, qreal radius) const {
    if (!hasFocus() || !focusFromKeyboard_) {
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    const auto stroke = [&](const QColor& color, qreal width, qreal inset) {
        painter.setPen(QPen(color, width));
        const QRectF ring = shape.adjusted(inset, inset, -inset, -inset);
        const qreal ringRadius = std::max<qreal>(0, std::min(radius - inset, ring.height() / 2));
        painter.drawRoundedRect(ring, ringRadius, ringRadius);
    };
    stroke(kFocusRingColor, kFocusRingWidth, kFocusRingWidth / 2);
    stroke(Qt::white, kFocusRingLining, kFocusRingWidth + kFocusRingLining / 2);
    painter.restore();
}

void StyledButton::drawLabelText(QPainter& painter, const QRectF& labelRect, const QString& text,
                                 const QFont& font, const QColor& color,
                                 Qt::Alignment horizontal) const {
    painter.save();
    painter.setFont(font);
    painter.setPen(color);
    const QRectF textRect = labelRect.adjusted(0, ControlLayout::kLabelTextInset, 0, 0);
    painter.drawText(textRect, static_cast<int>(horizontal | Qt::AlignTop | Qt::TextDontClip),
                     text);
    painter.restore();
}
