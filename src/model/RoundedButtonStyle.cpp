#include "model/RoundedButtonStyle.h"

#include <array>

std::optional<RoundedButtonStyle> RoundedButtonStyle::forType(int buttonType) {
    static constexpr std::array<RoundedButtonStyle, 5> kStyles{{
        {6, 7, 12},    // small blue: "Add"
        {4, 5, 16},    // big blue: "Show in Finder"
        {8, 9, 16},    // yellow: the start button
        {10, 11, 12},  // small grey: "Select files", "Save to..."
        {12, 13, 16},  // big grey: "Back to home"
    }};
    if (buttonType < 0 || buttonType >= static_cast<int>(kStyles.size())) {
        return std::nullopt;
    }
    return kStyles[static_cast<size_t>(buttonType)];
}
