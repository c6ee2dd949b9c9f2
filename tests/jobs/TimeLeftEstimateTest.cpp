#include <gtest/gtest.h>

#include "jobs/TimeLeftEstimate.h"

namespace {

class TimeLeft : public testing::Test {
protected:
    // Advances the fake clock and reports a percentage at the new time.
    void at(qint64 ms, double percent) {
        now = ms;
        estimate.addPercent(percent);
    }

    qint64 now = 0;
    TimeLeftEstimate estimate{[this] { return now; }};
};

}  // namespace

TEST_F(TimeLeft, NothingIsShownWhileWarmingUpStandingStillOrAfterAStartOver) {
    at(0, 0);
    at(4000, 4);
    EXPECT_FALSE(estimate.secondsLeft());  // the first seconds
    at(6000, 6);
    EXPECT_EQ(estimate.secondsLeft(), 94);  // 1 % a second
    at(7000, 0);                            // a percentage below the last: a new job
    at(13000, 0);
    EXPECT_FALSE(estimate.secondsLeft());  // no progress at all
    at(14000, 1);
    EXPECT_TRUE(estimate.secondsLeft());
}

TEST_F(TimeLeft, TheRateComesFromTheLastHalfMinuteNotFromTheStart) {
    at(0, 0);
    at(60000, 6);  // a slow first minute, then 1 % a second
    for (qint64 s = 61; s <= 100; ++s) {
        at(s * 1000, static_cast<double>(s - 54));
    }
    ASSERT_TRUE(estimate.secondsLeft());
    EXPECT_NEAR(static_cast<double>(*estimate.secondsLeft()), 54, 7);
}

TEST_F(TimeLeft, SmallSwingsCountDownInsteadOfJumpingAndALargeChangeIsTaken) {
    at(0, 0);
    at(10000, 10);
    ASSERT_EQ(estimate.secondsLeft(), 90);
    at(12000, 11.8);  // a fresh estimate near 90 s: the shown time just counts down
    EXPECT_EQ(estimate.secondsLeft(), 88);
    at(14000, 13.9);
    EXPECT_EQ(estimate.secondsLeft(), 86);
    for (qint64 ms = 16000; ms <= 40000; ms += 2000) {  // it slows to a crawl
        at(ms, 13.9 + static_cast<double>(ms - 14000) / 20000);
    }
    EXPECT_GT(*estimate.secondsLeft(), 300);
}
