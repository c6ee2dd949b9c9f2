#include <gtest/gtest.h>

#include "model/StatusTexts.h"

TEST(StatusTexts, TitleShowsTheWholePercentWithinItsRangeAndTheJobEndItsKindAndCounts) {
    const std::pair<std::optional<double>, QString> cases[] = {
        {std::nullopt, "Orvale"},    {std::nan(""), "Orvale"},      {0.0, "0% \u2013 Orvale"},
        {45.7, "45% \u2013 Orvale"}, {99.99, "99% \u2013 Orvale"},  {100.0, "100% \u2013 Orvale"},
        {-3.0, "0% \u2013 Orvale"},  {250.0, "100% \u2013 Orvale"},
    };
    for (const auto& [percent, title] : cases) {
        EXPECT_EQ(StatusTexts::windowTitle(percent), title) << percent.value_or(-1);
    }
    // The job's end names the kind and the counts.
    EXPECT_EQ(StatusTexts::jobEndedSummary(true), "Encoding finished");
    EXPECT_EQ(StatusTexts::jobEndedSummary(false), "Upload finished");
    EXPECT_EQ(StatusTexts::jobEndedBody(3, 0), "3 completed, 0 failed");
}
