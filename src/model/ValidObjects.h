#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <optional>

// Typed, null-safe reads of parsed JSON. A value is used only when it has the expected type and
// is not JSON null; numbers may also arrive as strings that hold a number; JSON booleans count
// as numbers. Anything else gives a fixed default (0, false, null) and never an error.
class ValidObjects {
public:
    // A non-empty string, else a null QString.
    static QString stringForKey(const QJsonObject& object, const QString& key);
    static qint32 intForKey(const QJsonObject& object, const QString& key);
    static double doubleForKey(const QJsonObject& object, const QString& key);
    static bool boolForKey(const QJsonObject& object, const QString& key);
    // The number itself, or a valid-number string's double value; nullopt otherwise.
    static std::optional<double> numberForKey(const QJsonObject& object, const QString& key);
    static std::optional<QJsonObject> dictionaryForKey(const QJsonObject& object,
                                                       const QString& key);
    static std::optional<QJsonArray> arrayForKey(const QJsonObject& object, const QString& key);
    static bool hasValidObjectForKey(const QJsonObject& object, const QString& key);

    // The element at the index, or an undefined value past the end.
    static QJsonValue validObjectAtIndex(const QJsonArray& array, qsizetype index);

    // The same readers on a bare value, for callers that already hold one.
    static qint32 intValue(const QJsonValue& value);
    static double doubleValue(const QJsonValue& value);
};
