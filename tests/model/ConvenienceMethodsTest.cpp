#include <gtest/gtest.h>

#include <QJsonValue>
#include <limits>

#include "model/ConvenienceMethods.h"
#include "model/NumberScanner.h"

namespace {

TEST(ConvenienceMethods, IsValidNumberFollowsTheRealThenIntegerRule) {
    const std::pair<const char*, bool> texts[] = {
        {"12", true},       {" 3.5 ", true},     {"-7", true},    {"1e3", true},
        {"1.5 2", true},    {"\n4\t\r\n", true}, {"+.5", true},   {"5.", true},
        {"2E-3", true},     {"12abc", false},    {"", false},     {"abc", false},
        {"   ", false},     {".", false},        {"-", false},    {"1e", false},
        {"1.5 2.5", false}, {"1 2 3", false},    {"0x10", false}, {"1,5", false},
        {"- 1", false},
    };
    for (const auto& [text, valid] : texts) {
        const QString string = QString::fromUtf8(text);
        EXPECT_EQ(ConvenienceMethods::isValidNumber(string), valid) << text;
        EXPECT_EQ(ConvenienceMethods::isValidNumber(QJsonValue(string)), valid) << text;
    }
}

// Numbers, true and null are no numeric texts, however numeric they look.
TEST(ConvenienceMethods, AMissingValueIsNeitherNullNorNotNull) {
    struct Row {
        QJsonValue value;
        bool isNull;
        bool notNull;
    };
    const Row rows[] = {{QJsonValue(QJsonValue::Null), true, false},
                        {QJsonValue(QJsonValue::Undefined), false, false},
                        {QJsonValue(3.5), false, true},
                        {QJsonValue(true), false, true},
                        {QJsonValue(QString()), false, true}};
    for (const Row& row : rows) {
        EXPECT_EQ(ConvenienceMethods::isNull(row.value), row.isNull) << row.value.type();
        EXPECT_EQ(ConvenienceMethods::notNull(row.value), row.notNull) << row.value.type();
        EXPECT_FALSE(ConvenienceMethods::isValidNumber(row.value)) << row.value.type();
    }
}

TEST(NumberScanner, LeadingValuesOfTexts) {
    constexpr qint32 max = std::numeric_limits<qint32>::max();
    constexpr qint32 min = std::numeric_limits<qint32>::min();
    struct Row {
        const char* text;
        qint32 intValue;
        double doubleValue;
    };
    const Row rows[] = {{" 3.5 ", 3, 3.5},
                        {"1e3", 1, 1000.0},
                        {"1.5 2", 1, 1.5},
                        {"-2.5", -2, -2.5},
                        {"abc", 0, 0.0},
                        {"", 0, 0.0},
                        {"\n 42x", 42, 42.0},
                        {"99999999999", max, 99999999999.0},
                        {"-99999999999", min, -99999999999.0},
                        {"1e999", 1, HUGE_VAL},
                        {"-1e-999", -1, -0.0}};
    for (const Row& row : rows) {
        const QString text = QString::fromUtf8(row.text);
        EXPECT_EQ(NumberScanner::intValue(text), row.intValue) << row.text;
        EXPECT_DOUBLE_EQ(NumberScanner::doubleValue(text), row.doubleValue) << row.text;
    }
}

}  // namespace
