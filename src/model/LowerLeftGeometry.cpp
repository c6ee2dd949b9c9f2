#include "model/LowerLeftGeometry.h"

#include <cmath>

namespace {

int roundedEdge(qreal edge) { return static_cast<int>(std::lround(edge)); }

}  // namespace

QRect LowerLeftGeometry::toQt(const QRectF& lowerLeftRect, qreal parentHeight) {
    const int left = roundedEdge(lowerLeftRect.x());
    const int right = roundedEdge(lowerLeftRect.x() + lowerLeftRect.width());
    const int top = roundedEdge(parentHeight - lowerLeftRect.y() - lowerLeftRect.height());
    const int bottom = roundedEdge(parentHeight - lowerLeftRect.y());
    return {left, top, right - left, bottom - top};
}

QRectF LowerLeftGeometry::fromQt(const QRect& qtRect, qreal parentHeight) {
    return {static_cast<qreal>(qtRect.x()), parentHeight - qtRect.y() - qtRect.height(),
            static_cast<qreal>(qtRect.width()), static_cast<qreal>(qtRect.height())};
}
