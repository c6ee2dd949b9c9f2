#include <gtest/gtest.h>

#include "server/FaultPlan.h"

using orvale_service::FaultPlan;
using orvale_service::FaultRule;

namespace {

const QStringList kEndpoints{"get_token", "select_all", "version"};

FaultRule rule(const QString& argument) {
    QString error;
    const auto parsed = FaultRule::parse(argument, kEndpoints, &error);
    EXPECT_TRUE(parsed) << error.toStdString();
    return parsed.value_or(FaultRule{});
}

}  // namespace

TEST(FaultRule, ParsesCombinedItemsAndRejectsWhatCannotWork) {
    const FaultRule combined = rule("select_all:project=status:503,delay:20,type:text/html,nth:2");
    EXPECT_EQ(combined.section, "project");
    EXPECT_EQ(combined.status, 503);
    EXPECT_EQ(combined.delayMs, 20);
    EXPECT_EQ(combined.contentType, "text/html");
    EXPECT_EQ(combined.nth, 2);

    QString error;
    for (const char* bad :
         {"nope=status:500", "get_token:x=nonjson", "select_all:project=drop:5",
          "get_token=status:600", "get_token=nth:0", "get_token=sometimes", "get_token"}) {
        EXPECT_FALSE(FaultRule::parse(bad, kEndpoints, &error)) << bad;
    }
}

TEST(FaultPlan, CountsEachRuleOnItsOwnAndKeepsSectionsApart) {
    FaultPlan plan({rule("get_token=status:500,nth:2"), rule("get_token=delay:5"),
                    rule("select_all:project=nonjson")});
    EXPECT_FALSE(plan.take("get_token", "").status);
    EXPECT_EQ(plan.take("get_token", "").status, 500);
    const auto third = plan.take("get_token", "");
    EXPECT_FALSE(third.status);
    EXPECT_EQ(third.delayMs, 5);

    EXPECT_FALSE(plan.take("select_all", "").nonJson);
    EXPECT_FALSE(plan.take("select_all", "media_type").nonJson);
    EXPECT_TRUE(plan.take("select_all", "project").nonJson);
    EXPECT_TRUE(plan.take("version", "").applied.isEmpty());
}
