#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <limits>

#include "model/ValidObjects.h"

namespace {

QJsonObject sample() {
    return QJsonDocument::fromJson(R"({
        "text": "abc", "empty": "", "real": 42.9, "negative": -42.9, "intText": "42",
        "realText": " 3.5 ", "bad": "4x", "trueText": "true", "null": null, "yes": true,
        "no": false, "zero": 0, "huge": 1e12, "object": {"a": 1}, "array": [1, 2]
    })")
        .object();
}

constexpr qint32 kMax = std::numeric_limits<qint32>::max();

TEST(ValidObjects, NumberReadersAgreeOnNumbersNumericTextsAndTheRest) {
    struct Row {
        const char* key;
        qint32 intValue;
        double doubleValue;
        bool boolValue;
        std::optional<double> number;
    };
    const Row rows[] = {
        {"real", 42, 42.9, true, 42.9},
        {"negative", -42, -42.9, true, -42.9},
        {"intText", 42, 42.0, false, 42.0},
        {"realText", 3, 3.5, false, 3.5},
        {"bad", 0, 0.0, false, std::nullopt},
        {"trueText", 0, 0.0, false, std::nullopt},
        {"text", 0, 0.0, false, std::nullopt},
        {"null", 0, 0.0, false, std::nullopt},
        {"missing", 0, 0.0, false, std::nullopt},
        {"yes", 1, 1.0, true, 1.0},
        {"no", 0, 0.0, false, 0.0},
        {"zero", 0, 0.0, false, 0.0},
        {"huge", kMax, 1e12, true, 1e12},
        {"object", 0, 0.0, false, std::nullopt},
    };
    const QJsonObject object = sample();
    for (const Row& row : rows) {
        SCOPED_TRACE(row.key);
        const QString key = QString::fromUtf8(row.key);
        EXPECT_EQ(ValidObjects::intForKey(object, key), row.intValue);
        EXPECT_DOUBLE_EQ(ValidObjects::doubleForKey(object, key), row.doubleValue);
        EXPECT_EQ(ValidObjects::boolForKey(object, key), row.boolValue);
        EXPECT_EQ(ValidObjects::numberForKey(object, key), row.number);
        EXPECT_EQ(ValidObjects::intValue(object.value(key)), row.intValue);
        EXPECT_DOUBLE_EQ(ValidObjects::doubleValue(object.value(key)), row.doubleValue);
    }
}

// Strings must be non-empty strings, containers of their kind, valid objects present and not
// null.
TEST(ValidObjects, TheOtherReadersTakeOnlyValuesOfTheirKind) {
    const QJsonObject object = sample();
    EXPECT_EQ(ValidObjects::stringForKey(object, QStringLiteral("text")), QStringLiteral("abc"));
    for (const char* key : {"empty", "real", "null", "missing", "array"}) {
        EXPECT_TRUE(ValidObjects::stringForKey(object, QString::fromUtf8(key)).isNull()) << key;
    }

    EXPECT_EQ(ValidObjects::dictionaryForKey(object, QStringLiteral("object")),
              object.value(QStringLiteral("object")).toObject());
    EXPECT_EQ(ValidObjects::arrayForKey(object, QStringLiteral("array")),
              object.value(QStringLiteral("array")).toArray());
    for (const char* key : {"array", "null", "missing", "text"}) {
        EXPECT_FALSE(ValidObjects::dictionaryForKey(object, QString::fromUtf8(key))) << key;
    }
    for (const char* key : {"object", "null", "missing", "text"}) {
        EXPECT_FALSE(ValidObjects::arrayForKey(object, QString::fromUtf8(key))) << key;
    }

    for (const char* key : {"zero", "empty", "no", "object"}) {
        EXPECT_TRUE(ValidObjects::hasValidObjectForKey(object, QString::fromUtf8(key))) << key;
    }
    EXPECT_FALSE(ValidObjects::hasValidObjectForKey(object, QStringLiteral("null")));
    EXPECT_FALSE(ValidObjects::hasValidObjectForKey(object, QStringLiteral("missing")));
}

TEST(ValidObjects, IndexesOutsideTheArrayGiveNoValue) {
    const QJsonArray array{10, QJsonValue::Null};
    EXPECT_EQ(ValidObjects::validObjectAtIndex(array, 0), QJsonValue(10));
    EXPECT_TRUE(ValidObjects::validObjectAtIndex(array, 1).isNull());
    EXPECT_TRUE(ValidObjects::validObjectAtIndex(array, 2).isUndefined());
    EXPECT_TRUE(ValidObjects::validObjectAtIndex(array, -1).isUndefined());
}

}  // namespace
