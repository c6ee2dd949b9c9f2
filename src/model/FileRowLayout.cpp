#include "model/FileRowLayout.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr qreal kMargin = 14;
constexpr qreal kLineTop = 8;
constexpr qreal kLineHeight = 22;
constexpr qreal kControlGap = 16;
constexpr qreal kDetailGap = 10;
constexpr qreal kRemoveSide = 18;
constexpr qreal kPopupWidth = 136;
// The popup's text starts this far in; the expected size lines up with it.
constexpr qreal kPopupTextInset = 7;
constexpr qreal kSizeBandHeight = 14;
constexpr QSizeF kCheckboxSize{118, 15};

qreal centredOnLine(qreal height) { return kLineTop + (kLineHeight - height) / 2; }

}  // namespace

FileRowLayout::Frames FileRowLayout::frames(const Input& input) {
    Frames frames;
    const qreal removeX = input.rowWidth - kMargin - kRemoveSide;
    frames.remove = {removeX, centredOnLine(kRemoveSide), kRemoveSide, kRemoveSide};
    qreal controlsLeft = removeX;
    if (input.showsPopup) {
        const qreal popupX = removeX - kControlGap - kPopupWidth;
        frames.popup = {popupX, kLineTop, kPopupWidth, kLineHeight};
        frames.sizeBand = {popupX + kPopupTextInset, kLineTop + kLineHeight + 2,
                           kPopupWidth - kPopupTextInset, kSizeBandHeight};
        controlsLeft = popupX;
    }
    if (input.showsCheckbox) {
        const qreal checkboxX = controlsLeft - kControlGap - kCheckboxSize.width();
        frames.checkbox = {{checkboxX, std::floor(centredOnLine(kCheckboxSize.height()))},
                           kCheckboxSize};
        controlsLeft = checkboxX;
    }
    const qreal detailRoom = input.detailTextWidth > 0 ? input.detailTextWidth + kDetailGap : 0;
    const qreal nameRoom = std::max<qreal>(0, controlsLeft - kControlGap - kMargin - detailRoom);
    const qreal nameWidth =
        input.showsCheckbox ? kNameWidthBesideCheckbox : std::min(input.nameTextWidth, nameRoom);
    frames.name = {kMargin, kLineTop, nameWidth, kLineHeight};
    if (detailRoom > 0) {
        const qreal detailX = frames.name.right() + kDetailGap;
        const qreal detailWidth =
            std::clamp<qreal>(controlsLeft - kControlGap - detailX, 0, input.detailTextWidth);
        frames.detail = {detailX, kLineTop, detailWidth, kLineHeight};
    }
    return frames;
}
