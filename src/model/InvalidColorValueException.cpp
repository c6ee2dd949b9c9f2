#include "model/InvalidColorValueException.h"

namespace {

std::string messageFor(const QString& hexString) {
    return QStringLiteral(
               "Color value %1 is invalid.  It should be a hex value of the form #RBG, "
               "#ARGB, #RRGGBB, or #AARRGGBB")
        .arg(hexString)
        .toStdString();
}

}  // namespace

InvalidColorValueException::InvalidColorValueException(const QString& hexString)
    : std::invalid_argument(messageFor(hexString)), hexString_(hexString) {}
