#pragma once

#include <optional>

// What a drawn button of a given type (0-4) looks like: the panel types behind it, normal and
// pressed, and the size of its bold title.
struct RoundedButtonStyle {
    int normalBackground;
    int pressedBackground;
    int titleSize;

    static std::optional<RoundedButtonStyle> forType(int buttonType);
};
