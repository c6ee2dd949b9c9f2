#include "model/CreditsLayout.h"

qreal CreditsLayout::frameHeight(qreal titleHeight, std::optional<qsizetype> creditCount,
                                 qreal placeholderHeight) {
    const float below = creditCount ? static_cast<float>(*creditCount * kInputSpacing)
                                    : static_cast<float>(placeholderHeight + kPlaceholderGap);
    return static_cast<float>(titleHeight) + below;
}

qreal CreditsLayout::titleY(qreal frameHeight, qreal titleHeight) {
    return frameHeight - titleHeight;
}

qreal CreditsLayout::placeholderY(qreal titleY, qreal placeholderHeight) {
    return titleY - kPlaceholderGap - placeholderHeight;
}

QRectF CreditsLayout::inputFrame(qreal titleY, qsizetype index) {
    return {0, titleY - kInputSpacing * static_cast<qreal>(index + 1), kInputWidth, kInputHeight};
}
