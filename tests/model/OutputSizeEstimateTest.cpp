#include <gtest/gtest.h>

#include "model/FileListTexts.h"
#include "model/OutputSizeEstimate.h"
#include "support/VideoFile.h"

namespace {

const QLocale kEnglish(QLocale::English, QLocale::UnitedStates);

FilePtr video(double durationMs, const QString& minBitrate = {}, const QString& maxBitrate = {}) {
    return videoFile({}, 1280, 720, durationMs, minBitrate, maxBitrate);
}

FilePtr other(double bytes) {
    auto file = std::make_shared<File>();
    file->size = bytes;
    return file;
}

}  // namespace

TEST(OutputSizeEstimate, BandsTheEncodeBetweenItsBitratesWithTheAudio) {
    struct Case {
        double durationMs;
        const char* minBitrate;
        const char* maxBitrate;
        qint64 minimumBytes;
        qint64 maximumBytes;
        const char* text;
    };
    const Case cases[] = {
        {90000, "2000k", "3200k", 23940000, 37440000, "≈ 23-38 MB"},  // rounded outward
        {1000, "2000k", "3200k", 266000, 416000, "≈ 266-416 kB"},
        {3600000, "3600k", "5000k", 1677600000, 2307600000, "≈ 1.6-2.4 GB"},
        {60000, "1000k", "1250k", 8460000, 10335000, "≈ 8.4-11 MB"},
    };
    for (const Case& c : cases) {
        const auto estimate = OutputSizeEstimate::forEncode(
            c.durationMs, QLatin1String(c.minBitrate), QLatin1String(c.maxBitrate));
        ASSERT_TRUE(estimate) << c.text;
        EXPECT_EQ(estimate->minimumBytes, c.minimumBytes) << c.text;
        EXPECT_EQ(estimate->maximumBytes, c.maximumBytes) << c.text;
        EXPECT_EQ(estimate->text(kEnglish), QString::fromUtf8(c.text));
    }
    EXPECT_FALSE(OutputSizeEstimate::forEncode(1000, {}, QStringLiteral("3200k")));
    EXPECT_FALSE(
        OutputSizeEstimate::forEncode(0, QStringLiteral("2000k"), QStringLiteral("3200k")));

    EXPECT_EQ(OutputSizeEstimate({24000000, 24000000, true}).text(kEnglish), "≈ 24 MB");
    EXPECT_EQ(OutputSizeEstimate::forUntouched(5240000).text(kEnglish), "5.2 MB");
    EXPECT_EQ(OutputSizeEstimate::forUntouched(1677600000).text(QLocale(QLocale::German)),
              "1,7 GB");
}

TEST(FileListTexts, TellsDurationsOnTheClockAndInWords) {
    struct Case {
        double milliseconds;
        const char* clock;
        const char* spoken;
    };
    const Case cases[] = {
        {0, "0:00", "0 s"},
        {45000, "0:45", "45 s"},
        {599600, "10:00", "10 min"},  // whole seconds, rounded
        {192000, "3:12", "3 min 12 s"},
        {3723000, "1:02:03", "1 h 2 min"},
        {3600000, "1:00:00", "1 h"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(FileListTexts::clockDuration(c.milliseconds, kEnglish), c.clock);
        EXPECT_EQ(FileListTexts::spokenDuration(c.milliseconds, kEnglish), c.spoken);
    }
}

TEST(FileListTexts, SumsUpTheBatchAndDescribesRows) {
    const FilePtr first = video(90000, "2000k", "3200k");
    const FilePtr second = video(102000, "2000k", "3200k");
    const FilePtr fresh = video(8000);
    const FilePtr sentAsItIs = video(60000, "2000k", "3200k");
    sentAsItIs->size = 7000000;
    sentAsItIs->videoDetail->doNotEncode = true;
    struct Case {
        FileList files;
        const char* line;
    };
    const Case cases[] = {
        {{}, ""},
        {{other(5240000)}, "1 file · 5.2 MB"},
        {{first, second}, "2 files · 3 min 12 s · ≈ 51-80 MB"},
        {{first, second, fresh}, "3 files · 3 min 20 s · ≈ 51-80 MB"},  // no size for fresh
        {{fresh}, "1 file · 8 s"},
        {{sentAsItIs}, "1 file · 1 min · 7 MB"},  // by its own size
    };
    for (const Case& c : cases) {
        EXPECT_EQ(FileListTexts::batchLine(c.files, kEnglish), QString::fromUtf8(c.line));
    }
    EXPECT_EQ(FileListTexts::rowDetail(*second, kEnglish), "1:42 · 1280x720");
    EXPECT_EQ(FileListTexts::rowDetail(*other(5240000), kEnglish), "5.2 MB");

    EXPECT_EQ(FileListTexts::readingLine(0, kEnglish), "");
    EXPECT_EQ(FileListTexts::readingLine(1, kEnglish), "Reading 1 file...");
    EXPECT_EQ(FileListTexts::readingLine(1200, kEnglish), "Reading 1,200 files...");
}
