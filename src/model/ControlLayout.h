#pragma once

#include <QRectF>

// Where the styled controls put their text and how wide an icon button must be. Buttons lay
// their content out from their top left corner, so every y here is measured downward from the
// control's top edge. The title rules lift a label a few points above the centre: a label draws
// its text that far below its own top edge (ControlLayout::kLabelTextInset), so the text itself
// ends up centred.
class ControlLayout {
public:
    static constexpr qreal kLabelTextInset = 3;

    // The title label of a drawn button: the bounds moved to
    // y = floor((bounds height - text height) * 0.5 - 3.5).
    static QRectF titleRectForBounds(const QRectF& bounds, qreal textHeight);

    // The label of an icon button, a checkbox or a tag: (height - text height) * 0.5 - 3.
    static qreal labelY(qreal controlHeight, qreal textHeight);

    // How far a text field's text area is inset at top and bottom so that one line of the font
    // (ascent plus descent) sits in the middle: floor((frame height - line height) * 0.5).
    static qreal verticallyCenteredTextInset(qreal frameHeight, qreal lineHeight);
    static QRectF adjustedFrameToVerticallyCenterText(const QRectF& frame, qreal lineHeight);

    // An icon button fits its icon (26), the gaps around the title (5 and 4) and the title; it
    // grows to that width but never shrinks.
    static qreal iconButtonWidth(qreal currentWidth, qreal titleWidth);
};
