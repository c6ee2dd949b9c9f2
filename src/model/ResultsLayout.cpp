#include "model/ResultsLayout.h"

namespace {

constexpr float kButtonsToCount = 22;
constexpr float kCountToImage = 48;
constexpr float kButtonsToTryAgain = 14;
constexpr float kTryAgainToList = 22;
constexpr float kListToHeading = 3;
constexpr int kRowsBeforeScrolling = 4;

float centredY(float background, float height) { return (background - height) * 0.5f; }

ResultsLayout::Result withoutFailures(const ResultsLayout::Heights& h) {
    ResultsLayout::Result r{};
    r.showsFailures = false;
    r.componentsHeight =
        h.homeButton + kButtonsToCount + h.uploadCountLabel + kCountToImage + h.imageView;
    r.componentsY = centredY(h.background, r.componentsHeight);
    r.buttonsY = 0;
    r.uploadCountLabelY = h.accountButton + kButtonsToCount;
    r.imageViewY = r.uploadCountLabelY + h.uploadCountLabel + kCountToImage;
    return r;
}

}  // namespace

ResultsLayout::Result ResultsLayout::layout(const Heights& h, qsizetype failedCount) {
    if (failedCount <= 0) {
        return withoutFailures(h);
    }
    Result r{};
    r.showsFailures = true;
    r.listHeight = static_cast<float>(failedCount) * kRowHeight;
    r.scrollViewHeight =
        failedCount <= kRowsBeforeScrolling ? r.listHeight : kScrollHeightFromFiveRows;
    r.buttonsY = 0;
    r.tryAgainButtonY = h.homeButton + kButtonsToTryAgain;
    r.scrollViewY = r.tryAgainButtonY + h.tryAgainButton + kTryAgainToList;
    r.notUploadedLabelY = r.scrollViewY + r.scrollViewHeight + kListToHeading;
    r.uploadCountLabelY = r.notUploadedLabelY + h.notUploadedLabel;
    r.imageViewY = r.uploadCountLabelY + h.uploadCountLabel + kCountToImage;
    r.componentsHeight = h.homeButton + kButtonsToTryAgain + h.tryAgainButton + kTryAgainToList +
                         r.scrollViewHeight + kListToHeading + h.notUploadedLabel +
                         h.uploadCountLabel + kCountToImage + h.imageView;
    r.componentsY = centredY(h.background, r.componentsHeight);
    return r;
}
