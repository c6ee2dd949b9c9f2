#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

// Where things sit in the window's title strip, in lower-left coordinates of the strip.
class TitleBarLayout {
public:
    static constexpr qreal kHeight = 38;
    static constexpr QSizeF kLogoSize{96, 19};

    // The logo is centred and snapped to whole points, halves rounding away from zero.
    static QPointF logoOrigin(const QSizeF& stripSize);
    static QRectF logoFrame(const QSizeF& stripSize);
    static QRectF backButtonFrame();
    // The sign-in button, as wide as its title needs, at the strip's right end.
    static QRectF userButtonFrame(const QSizeF& stripSize, qreal width);
};
