#pragma once

#include <QColor>
#include <QString>

// Colours written as hex texts, as the screens' styling gives them.
class HEX {
public:
    // "#RGB", "#ARGB", "#RRGGBB" or "#AARRGGBB", in either case, "#" optional; an sRGB colour.
    // Throws InvalidColorValueException for any other length.
    static QColor colorWithHexString(const QString& hexString);

    // The component at start with the given length (1 or 2 digits, a single digit counting
    // twice), scaled to 0..1. Digits that are not hex end the component; none at all give 0.
    static double colorComponentFrom(const QString& hexString, qsizetype start, qsizetype length);
};
