#pragma once

#include <QRectF>
#include <optional>

// How the credits view stacks one input per credit under its title, in the view's lower-left
// coordinates. A view without a credit list shows its placeholder instead; an empty list shows
// nothing but the title.
class CreditsLayout {
public:
    static constexpr qreal kInputSpacing = 46;
    static constexpr qreal kInputWidth = 302;
    static constexpr qreal kInputHeight = 32;
    static constexpr qreal kPlaceholderGap = 14;

    // The title's height plus 46 per credit, or plus the placeholder and its gap when there is
    // no list; in single precision.
    static qreal frameHeight(qreal titleHeight, std::optional<qsizetype> creditCount,
                             qreal placeholderHeight);
    // The title sits at the top of the view.
    static qreal titleY(qreal frameHeight, qreal titleHeight);
    // 14 below the title's bottom edge.
    static qreal placeholderY(qreal titleY, qreal placeholderHeight);
    // The input of the credit at an index: 46 apart, the first 46 below the title's y.
    static QRectF inputFrame(qreal titleY, qsizetype index);
};
