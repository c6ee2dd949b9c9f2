#include <gtest/gtest.h>

#include "model/BatchProgressTexts.h"
#include "model/ProgressBarRules.h"

TEST(ProgressBarRules, StubsForSmallValuesGlidingFromTheStubOnAndTheUploadCap) {
    struct Case {
        bool upload;
        double percent;
        double previous;
        ProgressBarRules::BarUpdate expected;
    };
    const Case cases[] = {
        {false, 0.5, 0, {0, false}},        {false, 1, 0, {0, false}},
        {false, 3, 0.5, {7, false}},        {false, 20, 3, {20, false}},  // the jump out
        {false, 20, 7, {20, true}},         {false, 100, 99, {100, true}},
        {true, 98, 50, {98, true}},         {true, 98.01, 50, {99, true, false}},
        {true, 99.5, 3, {99, true, false}},  // capped, animated, its text kept
        {true, 2, 0, {7, false}},
    };
    for (const Case& c : cases) {
        const auto bar = c.upload ? ProgressBarRules::uploadBar(c.percent, c.previous)
                                  : ProgressBarRules::convertBar(c.percent, c.previous);
        EXPECT_EQ(bar.percent, c.expected.percent) << c.upload << ' ' << c.percent;
        EXPECT_EQ(bar.animated, c.expected.animated) << c.upload << ' ' << c.percent;
        EXPECT_EQ(bar.showsText, c.expected.showsText) << c.upload << ' ' << c.percent;
    }
    EXPECT_EQ(ProgressBarRules::percentText(99.99), "99%");
}

TEST(BatchProgressTexts, TheFileAtWorkAndTheTimeLeft) {
    EXPECT_EQ(BatchProgressTexts::fileLine("clip.mov", 2, 3), "clip.mov \u00b7 file 2 of 3");
    const std::pair<std::optional<qint64>, QString> cases[] = {
        {std::nullopt, ""},
        {59, "Less than a minute left"},
        {89, "About 1 min left"},
        {90, "About 2 min left"},
        {89 * 60 + 20, "About 89 min left"},
        {125 * 60, "About 2 h 5 min left"},
    };
    for (const auto& [seconds, text] : cases) {
        EXPECT_EQ(BatchProgressTexts::timeLeft(seconds), text) << seconds.value_or(-1);
    }
}
