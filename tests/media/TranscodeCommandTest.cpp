#include <gtest/gtest.h>

#include "media/ProgressParser.h"
#include "media/TranscodeCommand.h"
#include "support/FakeHelper.h"

namespace {

FilePtr fileAt(const QString& path, bool preserveOriginal) {
    auto file = std::make_shared<File>(QUrl::fromLocalFile(path));
    file->videoDetail = std::make_shared<VideoDetail>();
    file->videoDetail->preserveOriginal = preserveOriginal;
    file->videoDetail->widthToEncode = 1280;
    file->videoDetail->minBitrate = QStringLiteral("2000k");
    file->videoDetail->maxBitrate = QStringLiteral("3200k");
    return file;
}

}  // namespace

TEST(TranscodeCommand, OutputNamesDropOnlyTheLastExtension) {
    EXPECT_EQ(TranscodeCommand::outputName(*fileAt("/cards/clip01.mov", false)), "clip01.mp4");
    EXPECT_EQ(TranscodeCommand::outputName(*fileAt("/cards/clip01.mov", true)), "clip01_proxy.mp4");
    EXPECT_EQ(TranscodeCommand::outputName(*fileAt("/home/a/take.final.avi", false)),
              "take.final.mp4");
    EXPECT_EQ(TranscodeCommand::outputName(*fileAt("/home/a/noextension", false)),
              "noextension.mp4");
}

TEST(TranscodeCommand, ArgumentsFollowTheChosenPreset) {
    const FilePtr file = fileAt("/cards/a clip.mov", false);
    // clang-format off
    EXPECT_EQ(TranscodeCommand::arguments(*file, "/work/a clip.mp4", {"aac", false}),
              (QStringList{"-i", "/cards/a clip.mov", "-q:v", "1", "-b:v", "2000k", "-minrate",
                           "2000k", "-maxrate", "3200k", "-bufsize", "2000k", "-vcodec", "libx264",
                           "-pix_fmt", "yuv410p", "-vf",
                           "[in]scale=1280:trunc(ow/a/2+0.5)*2[middle];[middle]yadif[out]",
                           "-movflags", "faststart", "-c:a", "aac", "-b:a", "128k", "-y",
                           "/work/a clip.mp4"}));
    // clang-format on
    EXPECT_EQ(TranscodeCommand::arguments(*file, "/w/a.mp4", {"aac", true}).mid(20, 6),
              (QStringList{"-c:a", "aac", "-strict", "experimental", "-b:a", "128k"}));
}

TEST(TranscodeCommand, ReadsTheAacEncoderFromTheHelpersList) {
    const QByteArray banner =
        "ffmpeg version 2.1 Copyright (c) 2000-2013\n  libavcodec 55.39\nEncoders:\n";
    struct Case {
        QByteArray list;
        QString name;
        bool experimental;
    };
    const Case cases[] = {
        {banner + " V..... libx264   H.264\n A..X.. aac    AAC (Advanced Audio Coding)\n", "aac",
         true},
        {" A....D aac    AAC\n A..... libvo_aacenc  VisualOn AAC\n", "libvo_aacenc", false},
        {" A....D aac    AAC\n A..... libvo_aacenc_x  something else\n", "aac", false},
    };
    for (const Case& c : cases) {
        const TranscodeCommand::AudioEncoder encoder = TranscodeCommand::audioEncoderInList(c.list);
        EXPECT_EQ(encoder.name, c.name) << c.list.toStdString();
        EXPECT_EQ(encoder.experimental, c.experimental) << c.list.toStdString();
    }
}

TEST(TranscodeCommand, AsksTheHelperInAFormOldBuildsKnowAndKeepsNoFailedAnswer) {
    FakeHelper oldBuild;
    const TranscodeCommand::AudioEncoder encoder =
        TranscodeCommand::audioEncoderFor(oldBuild.install(
            "ffmpeg",
            "[ \"$*\" = -encoders ] || { echo \"Unrecognized option '$1'\"; exit 1; }\n"
            "echo ' A..X.. aac    AAC (Advanced Audio Coding)'"));
    EXPECT_EQ(encoder.name, "aac");
    EXPECT_TRUE(encoder.experimental);

    FakeHelper broken;
    const QString failing = broken.install(
        "ffmpeg", QStringLiteral("echo asked >> '%1'; exit 1").arg(broken.recordPath()));
    EXPECT_TRUE(TranscodeCommand::audioEncoderFor(failing).experimental);
    EXPECT_TRUE(TranscodeCommand::audioEncoderFor(failing).experimental);
    EXPECT_EQ(broken.recordedLines().size(), 2);
}

// The first time field of a chunk counts; a full disk outweighs progress; an unreadable time
// reads as zero and other text as nothing.
TEST(ProgressParser, ReadsTheFirstTimeFieldOfAChunk) {
    struct Case {
        const char* chunk;
        std::optional<double> milliseconds;
        bool outOfSpace;
    };
    for (const Case& c : {
             Case{"frame=1500 fps=48 size=10240kB time=00:01:02.50 bitrate=1342.2kbits/s\r"
                  "frame=1600 fps=48 size=11240kB time=00:01:06.50 bitrate=1342.2kbits/s\r",
                  62500, false},
             Case{"time=00:00:01.00 bitrate=1k\nav_interleaved_write_frame(): No space left on "
                  "device\n",
                  std::nullopt, true},
             Case{"size=0kB time=N/A bitrate=N/A\r", 0, false},
             Case{"Input #0, mov,mp4,m4a,3gp,3g2,mj2, from 'clip.mov':\n", std::nullopt, false},
         }) {
        ProgressParser parser;
        const auto result = parser.parse(c.chunk);
        EXPECT_EQ(result.milliseconds, c.milliseconds) << c.chunk;
        EXPECT_EQ(result.outOfSpace, c.outOfSpace) << c.chunk;
    }
}
