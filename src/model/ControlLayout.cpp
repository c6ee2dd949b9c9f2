#include "model/ControlLayout.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr qreal kIconSide = 26;
constexpr qreal kGapBeforeTitle = 5;
constexpr qreal kGapAfterTitle = 4;

}  // namespace

QRectF ControlLayout::titleRectForBounds(const QRectF& bounds, qreal textHeight) {
    const qreal y = std::floor((bounds.height() - textHeight) * 0.5 - 3.5);
    return {bounds.x(), y, bounds.width(), bounds.height()};
}

qreal ControlLayout::labelY(qreal controlHeight, qreal textHeight) {
    return (controlHeight - textHeight) * 0.5 - 3;
}

qreal ControlLayout::verticallyCenteredTextInset(qreal frameHeight, qreal lineHeight) {
    return std::floor((frameHeight - lineHeight) * 0.5);
}

QRectF ControlLayout::adjustedFrameToVerticallyCenterText(const QRectF& frame, qreal lineHeight) {
    const qreal inset = verticallyCenteredTextInset(frame.height(), lineHeight);
    return frame.adjusted(0, inset, 0, -inset);
}

qreal ControlLayout::iconButtonWidth(qreal currentWidth, qreal titleWidth) {
    return std::max(currentWidth, titleWidth + kGapBeforeTitle + kIconSide + kGapAfterTitle);
}
