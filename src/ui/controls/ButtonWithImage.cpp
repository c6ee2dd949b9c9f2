#include "ui/controls/ButtonWithImage.h"

#include <QPainter>

#include "ui/controls/ImageSet.h"

ButtonWithImage::ButtonWithImage(QWidget* parent) : StyledButton(parent) {
    connect(this, &QAbstractButton::pressed, this, [this] { setHighlighted(true); });
}

void ButtonWithImage::setNormalImage(const QString& imageName) {
    normalImage_ = imageName;
    if (!highlighted_ && !selected_) {
        showImage(normalImage_);
    }
}

void ButtonWithImage::setHighlightedImage(const QString& imageName) {
    highlightedImage_ = imageName;
    if (highlighted_) {
        showImage(highlightedImage_);
    }
}

void ButtonWithImage::setSelectedImage(const QString& imageName) {
    selectedImage_ = imageName;
    if (selected_) {
        showImage(selectedImage_);
    }
}

void ButtonWithImage::setHighlighted(bool highlighted) {
    highlighted_ = highlighted;
    showImage(highlighted ? highlightedImage_ : normalImage_);
}

void ButtonWithImage::setSelected(bool selected) {
    selected_ = selected;
    showImage(selected ? selectedImage_ : normalImage_);
}

bool ButtonWithImage::acceptsPress() const { return !(disableAfterSelected_ && selected_); }

void ButtonWithImage::pressEnded() {
    if (highlighted_) {
        setHighlighted(false);
    }
    if (!selectedImage_.isEmpty()) {
        if (disableAfterSelected_) {
            if (selected_) {
                return;
            }
            setSelected(true);
        } else {
            setSelected(!selected_);
        }
    }
    if (isActionEnabled()) {
        emit triggered();
    }
}

void ButtonWithImage::showImage(const QString& imageName) {
    shownImage_ = imageName;
    update();
}

void ButtonWithImage::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!isEnabled()) {
        painter.setOpacity(0.4);  // a source the user may not use now
    }
    if (!shownImage_.isEmpty()) {
        painter.drawPixmap(rect(), ImageSet::pixmap(shownImage_, size(), devicePixelRatioF()));
    }
    drawFocusRing(painter, rect(), height() / 2.0);
}
