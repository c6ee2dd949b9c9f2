#include "model/ConvenienceMethods.h"

#include "model/NumberScanner.h"

bool ConvenienceMethods::isNull(const QJsonValue& value) { return value.isNull(); }

bool ConvenienceMethods::notNull(const QJsonValue& value) {
    return !value.isUndefined() && !value.isNull();
}

bool ConvenienceMethods::isString(const QJsonValue& value) { return value.isString(); }

bool ConvenienceMethods::isNumber(const QJsonValue& value) {
    return value.isDouble() || value.isBool();
}

bool ConvenienceMethods::isValidNumber(const QJsonValue& value) {
    return value.isString() && isValidNumber(value.toString());
}

bool ConvenienceMethods::isValidNumber(const QString& text) {
    NumberScanner scanner(text);
    if (scanner.scanDouble() && scanner.isAtEnd()) {
        return true;
    }
    return scanner.scanInt() && scanner.isAtEnd();
}
