#include "model/HEX.h"

#include "model/InvalidColorValueException.h"
#include "platform/Log.h"

namespace {

uint leadingHexValue(QStringView digits) {
    uint value = 0;
    for (const QChar c : digits) {
        const qsizetype digit = QStringLiteral("0123456789ABCDEF").indexOf(c.toUpper());
        if (digit < 0) {
            break;
        }
        value = value * 16 + static_cast<uint>(digit);
    }
    return value;
}

}  // namespace

QColor HEX::colorWithHexString(const QString& hexString) {
    const QString digits = QString(hexString).remove(QLatin1Char('#')).toUpper();
    switch (digits.size()) {
        case 3:
            return QColor::fromRgbF(colorComponentFrom(digits, 0, 1),
                                    colorComponentFrom(digits, 1, 1),
                                    colorComponentFrom(digits, 2, 1), 1.0);
        case 4:
            return QColor::fromRgbF(
                colorComponentFrom(digits, 1, 1), colorComponentFrom(digits, 2, 1),
                colorComponentFrom(digits, 3, 1), colorComponentFrom(digits, 0, 1));
        case 6:
            return QColor::fromRgbF(colorComponentFrom(digits, 0, 2),
                                    colorComponentFrom(digits, 2, 2),
                                    colorComponentFrom(digits, 4, 2), 1.0);
        case 8:
            return QColor::fromRgbF(
                colorComponentFrom(digits, 2, 2), colorComponentFrom(digits, 4, 2),
                colorComponentFrom(digits, 6, 2), colorComponentFrom(digits, 0, 2));
        default:
            LOG_ERROR("Invalid color value {}", hexString);
            throw InvalidColorValueException(hexString);
    }
}

double HEX::colorComponentFrom(const QString& hexString, qsizetype start, qsizetype length) {
    const QString component = hexString.mid(start, length);
    const QString full = length == 1 ? component + component : component;
    return leadingHexValue(full) / 255.0;
}
