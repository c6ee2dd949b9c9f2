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

struct Row {
    const char* key;
    qint32 intValue;
    double doubleValue;
    bool boolValue;
    std::optional<double> number;
};

void PrintTo(const Row& row, std::ostream* out) { *out << '"' << row.key << '"'; }

class NumberReaders : public testing::TestWithParam<Row> {};

TEST_P(NumberReaders, AgreeOnNumbersNumericTextsAndTheRest) {
    const QJsonObject object = sample();
    const QString key = QString::fromUtf8(GetParam().key);
    EXPECT_EQ(ValidObjects::intForKey(object, key), GetParam().intValue);
    EXPECT_DOUBLE_EQ(ValidObjects::doubleForKey(object, key), GetParam().doubleValue);
    EXPECT_EQ(ValidObjects::boolForKey(object, key), GetParam().boolValue);
    EXPECT_EQ(ValidObjects::numberForKey(object, key), GetParam().number);
    EXPECT_EQ(ValidObjects::intValue(object.value(key)), GetParam().intValue);
    EXPECT_DOUBLE_EQ(ValidObjects::doubleValue(object.value(key)), GetParam().doubleValue);
}

constexpr qint32 kMax = std::numeric_limits<qint32>::max();

INSTANTIATE_TEST_SUITE_P(
    Keys, NumberReaders,
    testing::Values(
        Row{"real", 42, 42.9, true, 42.9}, Row{"negative", -42, -42.9, true, -42.9},
        Row{"intText", 42, 42.0, false, 42.0}, Row{"realText", 3, 3.5, false, 3.5},
        Row{"bad", 0, 0.0, false, std::nullopt}, Row{"trueText", 0, 0.0, false, std::nullopt},
        Row{"text", 0, 0.0, false, std::nullopt}, Row{"null", 0, 0.0, false, std::nullopt},
        Row{"missing", 0, 0.0, false, std::nullopt}, Row{"yes", 1, 1.0, true, 1.0},
        Row{"no", 0, 0.0, false, 0.0}, Row{"zero", 0, 0.0, false, 0.0},
        Row{"huge", kMax, 1e12, true, 1e12}, Row{"object", 0, 0.0, false, std::nullopt}),
    [](const testing::TestParamInfo<Row>& info) { return std::string(info.param.key); });

TEST(ValidObjects, StringsMustBeNonEmptyStrings) {
    const QJsonObject object = sample();
    EXPECT_EQ(ValidObjects::stringForKey(object, QStringLiteral("text")), QStringLiteral("abc"));
    for (const char* key : {"empty", "real", "null", "missing", "array"}) {
        EXPECT_TRUE(ValidObjects::stringForKey(object, QString::fromUtf8(key)).isNull()) << key;
    }
}

TEST(ValidObjects, ContainersMustBeOfTheirKind) {
    const QJsonObject object = sample();
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
}

TEST(ValidObjects, AValidObjectIsAnyPresentNonNullValue) {
    const QJsonObject object = sample();
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
    EXPECT_TRUE(ValidObjects::validObjectAtIndex(QJsonArray(), 0).isUndefined());
}

}  // namespace
