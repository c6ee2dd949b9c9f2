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

// What the items do is seen by every test that starts the service with faults; sections kept
// apart, for one, by the client's refused-answers case.
TEST(FaultRule, RejectsWhatCannotWork) {
    QString error;
    for (const char* bad :
         {"nope=status:500", "get_token:x=nonjson", "select_all:project=drop:5",
          "get_token=status:600", "get_token=nth:0", "get_token=sometimes", "get_token"}) {
        EXPECT_FALSE(FaultRule::parse(bad, kEndpoints, &error)) << bad;
    }
}

TEST(FaultPlan, CountsEachRuleOfAnEndpointOnItsOwn) {
    FaultPlan plan({rule("get_token=status:500,nth:2"), rule("get_token=delay:5")});
    EXPECT_FALSE(plan.take("get_token", "").status);
    EXPECT_EQ(plan.take("get_token", "").status, 500);
    const auto third = plan.take("get_token", "");
    EXPECT_FALSE(third.status);
    EXPECT_EQ(third.delayMs, 5);
    EXPECT_TRUE(plan.take("version", "").applied.isEmpty());
}
