#pragma once

#include <QJsonValue>
#include <QString>

// Type tests on parsed JSON values. A missing value (an undefined QJsonValue, as a lookup of an
// absent key gives) is neither null nor not-null: both tests answer false for it.
class ConvenienceMethods {
public:
    // True for the JSON null marker only.
    static bool isNull(const QJsonValue& value);
    // True for a present value that is not the JSON null marker.
    static bool notNull(const QJsonValue& value);
    static bool isString(const QJsonValue& value);
    // JSON reals, integers and booleans alike: the service and the probe use them interchangeably.
    static bool isNumber(const QJsonValue& value);

    // True only for a string that holds a number; false for every non-string, numbers included.
    static bool isValidNumber(const QJsonValue& value);
    // Valid when the text is a real, or a real followed by an integer ("1.5 2"), with white space
    // and line breaks allowed around and between them.
    static bool isValidNumber(const QString& text);
};
