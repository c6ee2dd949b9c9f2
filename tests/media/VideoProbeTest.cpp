#include <gtest/gtest.h>

#include "media/VideoProbe.h"

namespace {

// An answer with one video stream of that size, and the container's duration when given.
std::string oneVideo(int width, int height, const std::string& duration = {}) {
    const std::string format = duration.empty() ? "{}" : R"({"duration":")" + duration + "\"}";
    return R"({"streams":[{"codec_type":"video","width":)" + std::to_string(width) +
           R"(,"height":)" + std::to_string(height) + R"(}],"format":)" + format + "}";
}

struct AnswerCase {
    const char* name;
    std::string answer;
    bool isVideo;
    bool hasDetail;
    double duration;
    double width;
    double height;
    friend void PrintTo(const AnswerCase& c, std::ostream* out) { *out << c.name; }
};

std::string caseName(const testing::TestParamInfo<AnswerCase>& info) { return info.param.name; }

class ProbeAnswer : public testing::TestWithParam<AnswerCase> {};

}  // namespace

TEST_P(ProbeAnswer, FillsTheFileRecord) {
    const AnswerCase& c = GetParam();
    File file;
    VideoProbe::applyAnswer(QByteArray::fromStdString(c.answer), file);
    EXPECT_EQ(file.isVideo, c.isVideo);
    ASSERT_EQ(file.videoDetail != nullptr, c.hasDetail);
    if (c.hasDetail) {
        EXPECT_NEAR(file.videoDetail->duration, c.duration, 1e-6);
        EXPECT_EQ(file.videoDetail->width, c.width);
        EXPECT_EQ(file.videoDetail->height, c.height);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Answers, ProbeAnswer,
    testing::Values(
        AnswerCase{
            "ContainerDurationWins",
            R"({"streams":[{"codec_type":"video","width":1920,"height":1080,"duration":"9.0"}],
                       "format":{"duration":"12.345678"}})",
            true, true, 12350, 1920, 1080},
        AnswerCase{"HalfASecondIsStillTooShort", oneVideo(320, 180, "0.5"), false, true, 500, 320,
                   180},
        AnswerCase{"JustOverHalfASecondIsAVideo", oneVideo(320, 180, "0.51"), true, true, 510, 320,
                   180},
        AnswerCase{"StillPictureWithoutDuration", oneVideo(64, 48), false, true, 0, 64, 48},
        AnswerCase{
            "AudioAndSubtitlesOnly",
            R"({"streams":[{"codec_type":"audio"},{"codec_type":"subtitle"}],"format":{"duration":"30"}})",
            false, false, 0, 0, 0},
        AnswerCase{
            "LastVideoStreamDecides",
            R"({"streams":[{"codec_type":"video","width":1920,"height":1080},{"codec_type":"audio"},
                                  {"codec_type":"video","width":600,"height":600}],"format":{"duration":"3"}})",
            true, true, 3000, 600, 600},
        AnswerCase{
            "CodecTypeIsCaseSensitive",
            R"({"streams":[{"codec_type":"Video","width":640,"height":360}],"format":{"duration":"3"}})",
            false, false, 0, 0, 0},
        AnswerCase{
            "NumbersAsTextAndNulls",
            R"({"streams":[{"codec_type":"video","width":"640","height":null}],"format":{"duration":2}})",
            true, true, 2000, 640, 0},
        AnswerCase{"NoStreamsMember", R"({"format":{"duration":"3"}})", false, false, 0, 0, 0},
        AnswerCase{"EmptyAnswer", "", false, false, 0, 0, 0},
        AnswerCase{"NotJson", "Invalid data found when processing input", false, false, 0, 0, 0}),
    caseName);

TEST(VideoProbe, AFailedReprobeKeepsTheEarlierDetailButIsNoLongerAVideo) {
    File file;
    VideoProbe::applyAnswer(QByteArray::fromStdString(oneVideo(640, 360, "3")), file);
    const VideoDetailPtr earlier = file.videoDetail;
    VideoProbe::applyAnswer("", file);
    EXPECT_FALSE(file.isVideo);
    EXPECT_EQ(file.videoDetail, earlier);
}

TEST(VideoProbe, ReadsAnAnswerOfSeveralHundredKilobytes) {
    QByteArray answer = R"({"streams":[)";
    for (int i = 0; i < 3000; ++i) {
        answer +=
            R"({"codec_type":"data","tags":{"title":"a rather long title to make the answer large"}},)";
    }
    answer += R"({"codec_type":"video","width":1280,"height":720}],"format":{"duration":"5"}})";
    ASSERT_GT(answer.size(), 200 * 1024);
    File file;
    VideoProbe::applyAnswer(answer, file);
    EXPECT_TRUE(file.isVideo);
    EXPECT_EQ(file.videoDetail->width, 1280);
}
