#pragma once

#include <QRect>
#include <QRectF>

// Screen geometry is written with the origin at the lower left of the parent and y growing
// upward; Qt puts the origin at the top left. These convert between the two for a parent of a
// given height. Edges are rounded one by one, so rectangles that touch still touch.
class LowerLeftGeometry {
public:
    static QRect toQt(const QRectF& lowerLeftRect, qreal parentHeight);
    static QRectF fromQt(const QRect& qtRect, qreal parentHeight);
};
