#include "ui/controls/ImageView.h"

#include <QPainter>

#include "ui/controls/ImageSet.h"

ImageView::ImageView(QWidget* parent) : QWidget(parent) {}

void ImageView::setImageName(const QString& imageName) {
    imageName_ = imageName;
    pixmap_ = {};
    update();
}

void ImageView::setPixmap(const QPixmap& pixmap) {
    imageName_.clear();
    pixmap_ = pixmap;
    update();
}

void ImageView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!imageName_.isEmpty()) {
        painter.drawPixmap(rect(), ImageSet::pixmap(imageName_, size(), devicePixelRatioF()));
    } else if (!pixmap_.isNull()) {
        painter.drawPixmap(rect(), pixmap_);
    }
}
