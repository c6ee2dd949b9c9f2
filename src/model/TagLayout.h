#pragma once

#include <QList>
#include <QRectF>
#include <QSizeF>

// Where the tags view puts its chips. Chip frames are in the tags view's lower-left coordinates;
// the parts of a chip (label, delete image) are measured from the chip's top edge, as buttons
// lay out their content.
class TagLayout {
public:
    static constexpr qreal kChipHeight = 26;
    static constexpr qreal kChipGap = 10;
    // A chip's height and the gap below it.
    static constexpr qreal kRowHeight = kChipHeight + kChipGap;
    static constexpr qreal kDeleteImageSide = 12;

    // The label fits its text with 5 to spare; past 260 it stops growing at 265 and the text is
    // cut at its end.
    static qreal labelWidth(qreal textWidth);
    // Label, delete image and the gaps around them: label + 10 + 12 + 12 + 6.
    static qreal chipWidth(qreal textWidth);
    static QRectF labelFrame(const QSizeF& textSize);
    static QRectF deleteImageFrame(qreal chipWidth);

    // The next chip goes 10 after the previous one, on its row; x is kept in single precision.
    static QPointF originAfter(const QRectF& previousChip);
    // The first row lies one row below the entry field's background.
    static qreal firstRowY(qreal entryBackgroundY);
    // A chip that would stick out past the view's right edge starts a new row.
    static bool overflows(const QRectF& chip, qreal viewWidth);

    // Places the chips from an index on, each after its predecessor, wrapping at the view's
    // width; chips before the index keep their frames.
    static QList<QRectF> reflow(QList<QRectF> chips, qsizetype fromIndex, qreal viewWidth,
                                qreal entryBackgroundY);
    // After a reflow: the bottom row holds no chip any more (the last chip sits above y 0).
    static bool bottomRowIsEmpty(const QList<QRectF>& chips);
};
