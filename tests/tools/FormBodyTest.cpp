#include <gtest/gtest.h>

#include "server/FormBody.h"

using orvale_service::FormBody;

namespace {

const QStringList kLoginKeys{"connect_un", "connect_pw", "output_format"};
const QStringList kFreeText{"connect_un", "connect_pw"};

}  // namespace

TEST(FormBody, KeepsAmpersandsAndEqualsInsideFreeTextValuesInAnyPairOrder) {
    const auto pairs = FormBody::parse("connect_pw=a&b=c&&d&output_format=json&connect_un=x=y",
                                       kLoginKeys, kFreeText);
    ASSERT_EQ(pairs.size(), 3);
    EXPECT_EQ(FormBody::value(pairs, "connect_pw"), "a&b=c&&d");
    EXPECT_EQ(FormBody::value(pairs, "connect_un"), "x=y");
    EXPECT_EQ(FormBody::value(pairs, "output_format"), "json");
}

TEST(FormBody, ReportsUnknownRepeatedAndMissingKeys) {
    // After a value that is not free text, an unknown key stands on its own.
    const auto pairs =
        FormBody::parse("output_format=json&extra=1&output_format=json", kLoginKeys, kFreeText);
    ASSERT_EQ(pairs.size(), 3);
    const QStringList problems = FormBody::keyProblems(pairs, kLoginKeys);
    EXPECT_EQ(problems.size(), 4);
    EXPECT_TRUE(problems.join("|").contains("unexpected pair \"extra\""));
    EXPECT_TRUE(problems.join("|").contains("\"output_format\" is sent more than once"));
    EXPECT_TRUE(problems.join("|").contains("missing pair \"connect_pw\""));
}
