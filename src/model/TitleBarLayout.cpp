#include "model/TitleBarLayout.h"

#include <algorithm>
#include <cmath>

QPointF TitleBarLayout::logoOrigin(const QSizeF& stripSize) {
    return {std::round((stripSize.width() - kLogoSize.width()) * 0.5),
            std::round((stripSize.height() - kLogoSize.height()) * 0.5)};
}

QRectF TitleBarLayout::logoFrame(const QSizeF& stripSize) {
    return {logoOrigin(stripSize), kLogoSize};
}

QRectF TitleBarLayout::backButtonFrame() { return {91, 4, 100, 26}; }

QRectF TitleBarLayout::userButtonFrame(const QSizeF& stripSize, qreal width) {
    constexpr qreal kRightMargin = 12;
    return {std::max<qreal>(0, stripSize.width() - kRightMargin - width), 4, width, 26};
}
