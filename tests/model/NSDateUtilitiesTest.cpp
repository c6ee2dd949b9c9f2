#include <gtest/gtest.h>

#include "model/NSDateUtilities.h"

namespace {

TEST(NSDateUtilities, MillisecondsFromElapsedTimeTexts) {
    struct Row {
        const char* text;
        double milliseconds;
    };
    const Row rows[] = {{"00:01:02.25", 62250},
                        {"10:20:30.40", 37230400},
                        {"00:00:01.994", 1990},
                        {"00:00:00.125", 130},
                        {"00:00:-0.125", -130},
                        {"00:02", 120000},
                        {"03", 10800000},
                        {"", 0},
                        {"N/A", 0},
                        {"x:01:00.5", 60500},
                        {"00:00:05.00 bitrate", 5000},
                        {"00:00:05:99", 5000}};
    const NSDateUtilities& utilities = NSDateUtilities::sharedInstance();
    for (const Row& row : rows) {
        EXPECT_NEAR(utilities.millisecondsFromString(QString::fromUtf8(row.text)), row.milliseconds,
                    1e-6)
            << row.text;
    }
}

}  // namespace
