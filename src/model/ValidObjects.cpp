#include "model/ValidObjects.h"

#include <cmath>
#include <limits>

#include "model/ConvenienceMethods.h"
#include "model/NumberScanner.h"

namespace {

// Truncates toward zero; values beyond int32 stick to its limits rather than wrap.
qint32 truncatedInt(double value) {
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= std::numeric_limits<qint32>::max()) {
        return std::numeric_limits<qint32>::max();
    }
    if (value <= std::numeric_limits<qint32>::min()) {
        return std::numeric_limits<qint32>::min();
    }
    return static_cast<qint32>(value);
}

double numberValue(const QJsonValue& value) {
    return value.isBool() ? (value.toBool() ? 1.0 : 0.0) : value.toDouble();
}

}  // namespace

QString ValidObjects::stringForKey(const QJsonObject& object, const QString& key) {
    const QJsonValue value = object.value(key);
    if (!value.isString()) {
        return {};
    }
    QString text = value.toString();
    return text.isEmpty() ? QString() : text;
}

qint32 ValidObjects::intForKey(const QJsonObject& object, const QString& key) {
    return intValue(object.value(key));
}

double ValidObjects::doubleForKey(const QJsonObject& object, const QString& key) {
    return doubleValue(object.value(key));
}

bool ValidObjects::boolForKey(const QJsonObject& object, const QString& key) {
    const QJsonValue value = object.value(key);
    return ConvenienceMethods::isNumber(value) && numberValue(value) != 0.0;
}

std::optional<double> ValidObjects::numberForKey(const QJsonObject& object, const QString& key) {
    const QJsonValue value = object.value(key);
    if (ConvenienceMethods::isNumber(value)) {
        return numberValue(value);
    }
    if (ConvenienceMethods::isValidNumber(value)) {
        return NumberScanner::doubleValue(value.toString());
    }
    return std::nullopt;
}

std::optional<QJsonObject> ValidObjects::dictionaryForKey(const QJsonObject& object,
                                                          const QString& key) {
    const QJsonValue value = object.value(key);
    return value.isObject() ? std::optional(value.toObject()) : std::nullopt;
}

std::optional<QJsonArray> ValidObjects::arrayForKey(const QJsonObject& object, const QString& key) {
    const QJsonValue value = object.value(key);
    return value.isArray() ? std::optional(value.toArray()) : std::nullopt;
}

bool ValidObjects::hasValidObjectForKey(const QJsonObject& object, const QString& key) {
    return ConvenienceMethods::notNull(object.value(key));
}

QJsonValue ValidObjects::validObjectAtIndex(const QJsonArray& array, qsizetype index) {
    if (index < 0 || index >= array.size()) {
        return QJsonValue(QJsonValue::Undefined);
    }
    return array.at(index);
}

qint32 ValidObjects::intValue(const QJsonValue& value) {
    if (ConvenienceMethods::isNumber(value)) {
        return truncatedInt(numberValue(value));
    }
    if (ConvenienceMethods::isValidNumber(value)) {
        return NumberScanner::intValue(value.toString());
    }
    return 0;
}

double ValidObjects::doubleValue(const QJsonValue& value) {
    if (ConvenienceMethods::isNumber(value)) {
        return numberValue(value);
    }
    if (ConvenienceMethods::isValidNumber(value)) {
        return NumberScanner::doubleValue(value.toString());
    }
    return 0.0;
}
