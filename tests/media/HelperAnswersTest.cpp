#include <gtest/gtest.h>

#include "media/HelperAnswers.h"
#include "support/FakeHelper.h"

namespace {

class HelperAnswersTest : public testing::Test {
protected:
    HelperAnswers::Ask counted(const QString& value, bool lasting = true) {
        return [this, value, lasting] {
            ++asked_;
            return HelperAnswers::Reply{value, lasting};
        };
    }

    FakeHelper helpers;
    const QString helper = helpers.install("ffmpeg", "echo first build");
    const QString cacheFile = helpers.folder() + "/cache/helper-answers.ini";
    int asked_ = 0;
};

}  // namespace

TEST_F(HelperAnswersTest, AnswersOutliveTheProcessUntilTheHelperIsReplaced) {
    HelperAnswers firstRun(cacheFile);
    EXPECT_EQ(firstRun.answer(helper, "aac encoder", counted("aac")), "aac");
    EXPECT_EQ(firstRun.answer(helper, "aac encoder", counted("unused")), "aac");
    EXPECT_EQ(asked_, 1);

    HelperAnswers laterRun(cacheFile);
    EXPECT_EQ(laterRun.answer(helper, "aac encoder", counted("unused")), "aac");
    EXPECT_EQ(asked_, 1);
    EXPECT_EQ(laterRun.answer(helper, "takes -show_format_entry", counted("no")), "no");
    EXPECT_EQ(asked_, 2);

    // An upgrade that installs another build at the same path.
    helpers.install("ffmpeg", "echo second build, with other encoders");
    EXPECT_EQ(laterRun.answer(helper, "aac encoder", counted("libvo_aacenc")), "libvo_aacenc");
    HelperAnswers runAfterUpgrade(cacheFile);
    EXPECT_EQ(runAfterUpgrade.answer(helper, "aac encoder", counted("unused")), "libvo_aacenc");
    EXPECT_EQ(asked_, 3);
}

TEST_F(HelperAnswersTest, FailedAnswersAreKeptNowhereAndMissingHelpersForTheRunOnly) {
    const QString missing = helpers.folder() + "/ffprobe";
    HelperAnswers firstRun(cacheFile);
    EXPECT_EQ(firstRun.answer(helper, "aac encoder", counted("aac", false)), "aac");
    EXPECT_EQ(firstRun.answer(helper, "aac encoder", counted("libvo_aacenc")), "libvo_aacenc");
    EXPECT_EQ(firstRun.answer(missing, "takes -show_format_entry", counted("no")), "no");
    EXPECT_EQ(firstRun.answer(missing, "takes -show_format_entry", counted("unused")), "no");
    EXPECT_EQ(asked_, 3);

    HelperAnswers nextRun(cacheFile);
    EXPECT_EQ(nextRun.answer(helper, "aac encoder", counted("unused")), "libvo_aacenc");
    EXPECT_EQ(nextRun.answer(missing, "takes -show_format_entry", counted("yes")), "yes");
    EXPECT_EQ(asked_, 4);
}
