#include <gtest/gtest.h>
#include <signal.h>

#include <QFileInfo>

#include "support/FakeHelper.h"
#include "support/JobFiles.h"
#include "support/JobHarness.h"
#include "support/ScopedEnvironment.h"
#include "support/TestMedia.h"

using namespace NotificationNames;

// Faults the real ffmpeg can't be made to show on demand, played by stand-in scripts.
namespace {

class EncoderFaults : public testing::Test, protected JobHarness {
protected:
    EncoderFaults()
        : JobHarness({kNotificationDidChangeEncodedPercent,
                      kNotificationDidOccureProblemWhileEncoding,
                      kNotificationDidRanOutOfSpaceOnDisk, kNotificationDidFinishUploading}) {}
    void SetUp() override {
        // Probe with the real ffprobe before the stand-in folder takes over.
        files = {probedFile(TestMedia::video(320, 180, 1, true)),
                 probedFile(TestMedia::video(320, 240, 1, true))};
    }
    void runWith(const QString& body) {
        helper.installFfmpeg(body);
        helpers = std::make_unique<ScopedHelpersDir>(helper.folder());
        manager.startLocalEncodeForFiles(files, outputUrl());
    }
    bool waitForTheEnd() { return waitForAny({kNotificationDidFinishUploading}); }

    FakeHelper helper;
    std::unique_ptr<ScopedHelpersDir> helpers;
    FileList files;
};

}  // namespace

TEST_F(EncoderFaults, AFullDiskEndsEitherJobOnceAfterTheTranscoderAndItsOutputAreGone) {
    helper.installFullDiskFfmpeg();
    ScopedHelpersDir fakes(helper.folder());
    QObject observer;
    bool stoppedAndRemovedFirst = false;
    center.addObserver(&observer, kNotificationDidRanOutOfSpaceOnDisk, [&](const Notification&) {
        const bool transcoderGone = ::kill(helper.recordedLines().value(0).toInt(), 0) != 0;
        stoppedAndRemovedFirst =
            transcoderGone &&
            !QFileInfo::exists(files[0]->videoDetail->encodedVideoUrl.toLocalFile());
    });
    for (const bool upload : {false, true}) {
        SCOPED_TRACE(upload ? "upload" : "local encode");
        log.received.clear();
        stoppedAndRemovedFirst = false;
        if (upload) {
            manager.startUploadProcessForFiles(files, {}, false);
        } else {
            manager.startLocalEncodeForFiles(files, outputUrl());
        }
        ASSERT_TRUE(waitUntil([&] { return log.count(kNotificationDidRanOutOfSpaceOnDisk) == 1; }));
        settle();

        EXPECT_EQ(log.count(kNotificationDidRanOutOfSpaceOnDisk), 1);
        EXPECT_EQ(log.count(kNotificationDidFinishUploading) +
                      log.count(kNotificationDidOccureProblemWhileEncoding),
                  0);
        EXPECT_TRUE(stoppedAndRemovedFirst);
        // Uploads name what never went up; a local job leaves the files it never reached alone.
        EXPECT_EQ(manager.failedFiles(), upload ? files : FileList{});
        EXPECT_FALSE(manager.isEncoding());
        EXPECT_FALSE(manager.encoder().isRunning());
        EXPECT_EQ(power.held, 0);
    }
}

TEST_F(EncoderFaults, AHelperThatCrashesOrIsMissingFailsEachFileAndTheJobEndsNormally) {
    runWith(QStringLiteral("kill -SEGV $$"));  // before any progress
    ASSERT_TRUE(waitForTheEnd());
    EXPECT_EQ(log.count(kNotificationDidOccureProblemWhileEncoding), 2);
    EXPECT_EQ(manager.failedFiles(), files);
    EXPECT_EQ(power.held, 0);

    log.received.clear();
    FakeHelper empty;
    ScopedHelpersDir nowhere(empty.folder());
    ScopedEnvironment path("PATH", empty.folder().toUtf8());
    EXPECT_FALSE(probedFile(files[0]->path())->isVideo);  // no probe: an empty answer
    manager.startLocalEncodeForFiles(files, outputUrl());
    ASSERT_TRUE(waitForTheEnd());
    EXPECT_EQ(log.count(kNotificationDidOccureProblemWhileEncoding), 2);
    EXPECT_EQ(manager.failedFiles(), files);
    EXPECT_EQ(power.held, 0);
}

TEST_F(EncoderFaults, ReachingNinetyPercentOfTheDurationIsEnoughEvenWhenTheLineIsSplit) {
    // Both clips last 1000 ms: 900 ms is enough, even when it arrives in two reads; 890 ms is not.
    runWith(QStringLiteral(
        "case \"$2\" in *320x180*) printf 'frame=25 size=1kB time=00:00:0'; sleep 0.3\n"
        "  printf '0.90 bitrate=1.0kbits/s speed=1x\\r';;\n"
        "*) echo 'frame=1 time=00:00:00.89 bitrate=1k';; esac\necho encoded > \"$last\""));
    ASSERT_TRUE(waitForTheEnd());
    EXPECT_TRUE(files[0]->videoDetail->encodeSuccess);
    EXPECT_EQ(files[0]->videoDetail->encodedSize, 8);
    EXPECT_FALSE(files[1]->videoDetail->encodeSuccess);
    EXPECT_EQ(manager.failedFiles(), FileList{files[1]});
}
