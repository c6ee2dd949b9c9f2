#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "media/HelperAnswers.h"

namespace {

class HelperAnswersTest : public testing::Test {
protected:
    void SetUp() override { writeHelper("#!/bin/sh\necho first build\n"); }

    void writeHelper(const QByteArray& contents) {
        QFile file(helper());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(contents);
    }

    QString helper() const { return dir_.filePath(QStringLiteral("ffmpeg")); }
    QString cacheFile() const { return dir_.filePath(QStringLiteral("cache/helper-answers.ini")); }

    HelperAnswers::Ask counted(const QString& value, bool lasting = true) {
        return [this, value, lasting] {
            ++asked_;
            return HelperAnswers::Reply{value, lasting};
        };
    }

    QTemporaryDir dir_;
    int asked_ = 0;
};

}  // namespace

TEST_F(HelperAnswersTest, AnswersOutliveTheProcessUntilTheHelperIsReplaced) {
    HelperAnswers firstRun(cacheFile());
    EXPECT_EQ(firstRun.answer(helper(), "aac encoder", counted("aac")), "aac");
    EXPECT_EQ(firstRun.answer(helper(), "aac encoder", counted("unused")), "aac");
    EXPECT_EQ(asked_, 1);

    HelperAnswers laterRun(cacheFile());
    EXPECT_EQ(laterRun.answer(helper(), "aac encoder", counted("unused")), "aac");
    EXPECT_EQ(asked_, 1);
    EXPECT_EQ(laterRun.answer(helper(), "takes -show_format_entry", counted("no")), "no");
    EXPECT_EQ(asked_, 2);

    // An upgrade that installs another build at the same path.
    writeHelper("#!/bin/sh\necho second build, with other encoders\n");
    EXPECT_EQ(laterRun.answer(helper(), "aac encoder", counted("libvo_aacenc")), "libvo_aacenc");
    HelperAnswers runAfterUpgrade(cacheFile());
    EXPECT_EQ(runAfterUpgrade.answer(helper(), "aac encoder", counted("unused")), "libvo_aacenc");
    EXPECT_EQ(asked_, 3);
}

TEST_F(HelperAnswersTest, FailedAnswersAreKeptNowhereAndMissingHelpersForTheRunOnly) {
    const QString missing = dir_.filePath(QStringLiteral("ffprobe"));
    HelperAnswers firstRun(cacheFile());
    EXPECT_EQ(firstRun.answer(helper(), "aac encoder", counted("aac", false)), "aac");
    EXPECT_EQ(firstRun.answer(helper(), "aac encoder", counted("libvo_aacenc")), "libvo_aacenc");
    EXPECT_EQ(firstRun.answer(missing, "takes -show_format_entry", counted("no")), "no");
    EXPECT_EQ(firstRun.answer(missing, "takes -show_format_entry", counted("unused")), "no");
    EXPECT_EQ(asked_, 3);

    HelperAnswers nextRun(cacheFile());
    EXPECT_EQ(nextRun.answer(helper(), "aac encoder", counted("unused")), "libvo_aacenc");
    EXPECT_EQ(nextRun.answer(missing, "takes -show_format_entry", counted("yes")), "yes");
    EXPECT_EQ(asked_, 4);
}
