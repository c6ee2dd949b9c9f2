#include "model/TagLayout.h"

#include <algorithm>

#include "model/ControlLayout.h"

namespace {

constexpr qreal kLabelX = 10;
constexpr qreal kLabelSlack = 5;
constexpr qreal kLongestTextWidth = 260;
constexpr qreal kLongestLabelWidth = 265;
// Label x, delete image, the gaps on both sides of it.
constexpr qreal kChipExtra = kLabelX + TagLayout::kDeleteImageSide + 12 + 6;
constexpr qreal kDeleteImageInset = 18;

}  // namespace

qreal TagLayout::labelWidth(qreal textWidth) {
    return textWidth <= kLongestTextWidth ? textWidth + kLabelSlack : kLongestLabelWidth;
}

qreal TagLayout::chipWidth(qreal textWidth) { return labelWidth(textWidth) + kChipExtra; }

QRectF TagLayout::labelFrame(const QSizeF& textSize) {
    return {kLabelX, ControlLayout::labelY(kChipHeight, textSize.height()),
            labelWidth(textSize.width()), textSize.height()};
}

QRectF TagLayout::deleteImageFrame(qreal chipWidth) {
    return {chipWidth - kDeleteImageInset, (kChipHeight - kDeleteImageSide) * 0.5, kDeleteImageSide,
            kDeleteImageSide};
}

QPointF TagLayout::originAfter(const QRectF& previousChip) {
    const float x = static_cast<float>(previousChip.right()) + static_cast<float>(kChipGap);
    return {x, previousChip.y()};
}

qreal TagLayout::firstRowY(qreal entryBackgroundY) { return entryBackgroundY - kRowHeight; }

bool TagLayout::overflows(const QRectF& chip, qreal viewWidth) { return chip.right() > viewWidth; }

QList<QRectF> TagLayout::reflow(QList<QRectF> chips, qsizetype fromIndex, qreal viewWidth,
                                qreal entryBackgroundY) {
    for (qsizetype i = std::max<qsizetype>(fromIndex, 0); i < chips.size(); ++i) {
        QPointF origin =
            i > 0 ? originAfter(chips.at(i - 1)) : QPointF(0, firstRowY(entryBackgroundY));
        if (overflows(QRectF(origin, chips.at(i).size()), viewWidth)) {
            origin = {0, origin.y() - kRowHeight};
        }
        chips[i].moveTo(origin);
    }
    return chips;
}

bool TagLayout::bottomRowIsEmpty(const QList<QRectF>& chips) {
    return !chips.isEmpty() && chips.last().y() > 0;
}
