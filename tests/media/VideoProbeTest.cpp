#include <gtest/gtest.h>

#include "media/VideoProbe.h"

// Answers only a hand-made helper gives. What the real one says of audio, cover pictures and
// text, and a missing helper's silence, are tried with the encoder.
TEST(VideoProbe, FillsTheFileRecordFromTheAnswer) {
    struct Case {
        const char* name;
        QByteArray answer;
        bool isVideo;
        bool hasDetail;
        double duration;
        double width;
        double height;
    };
    const Case cases[] = {
        {"the container's duration wins",
         R"({"streams":[{"codec_type":"video","width":1920,"height":1080,"duration":"9.0"}],
             "format":{"duration":"12.345678"}})",
         true, true, 12350, 1920, 1080},
        {"the codec type is case sensitive",
         R"({"streams":[{"codec_type":"Video","width":640,"height":360}],"format":{"duration":"3"}})",
         false, false, 0, 0, 0},
        {"numbers as text and nulls",
         R"({"streams":[{"codec_type":"video","width":"640","height":null}],"format":{"duration":2}})",
         true, true, 2000, 640, 0},
        {"no streams member", R"({"format":{"duration":"3"}})", false, false, 0, 0, 0},
        {"not JSON", "Invalid data found when processing input", false, false, 0, 0, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        File file;
        VideoProbe::applyAnswer(c.answer, file);
        EXPECT_EQ(file.isVideo, c.isVideo);
        ASSERT_EQ(file.videoDetail != nullptr, c.hasDetail);
        if (c.hasDetail) {
            EXPECT_NEAR(file.videoDetail->duration, c.duration, 1e-6);
            EXPECT_EQ(file.videoDetail->width, c.width);
            EXPECT_EQ(file.videoDetail->height, c.height);
            // A failed probe of the same file later keeps what was found, but not as a video.
            const VideoDetailPtr earlier = file.videoDetail;
            VideoProbe::applyAnswer("", file);
            EXPECT_FALSE(file.isVideo);
            EXPECT_EQ(file.videoDetail, earlier);
        }
    }
}
