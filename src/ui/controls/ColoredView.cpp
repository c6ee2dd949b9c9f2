#include "ui/controls/ColoredView.h"

#include <QPainter>

ColoredView::ColoredView(QWidget* parent) : QWidget(parent) {}

void ColoredView::setBackgroundColor(const QColor& color) {
    backgroundColor_ = color;
    update();
}

void ColoredView::paintEvent(QPaintEvent*) { QPainter(this).fillRect(rect(), backgroundColor_); }
