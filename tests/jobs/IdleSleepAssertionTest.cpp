#include <gtest/gtest.h>

#include <functional>

#include "support/JobFiles.h"
#include "support/JobHarness.h"
#include "support/TestMedia.h"

using namespace NotificationNames;

namespace {

// Jobs of both kinds one after the other, each of which must hold the assertion while it runs,
// end exactly once, and leave none held. Uploads go nowhere (no one is signed in), which ends
// them as failed batches.
class IdleSleepAssertion : public testing::Test, protected JobHarness {
protected:
    IdleSleepAssertion()
        : JobHarness({kNotificationDidFinishUploading, kNotificationDidFailUploading}) {}
    void runJob(const std::function<void()>& start) {
        const int endsBefore = ends();
        start();
        EXPECT_EQ(power.held, 1);
        ASSERT_TRUE(waitUntil([&] { return ends() > endsBefore; }, 60000));
        settle();
        EXPECT_EQ(ends(), endsBefore + 1);
        EXPECT_EQ(power.held, 0);
    }
};

}  // namespace

TEST_F(IdleSleepAssertion, LocalJobWhoseVideosAllFailThenTheUploadThatRetriesItThenALocalJob) {
    const FilePtr text =
        std::make_shared<File>(QUrl::fromLocalFile(TestMedia::textFile("assert-notes.txt", "x")));
    const FilePtr video = damagedClip("assert-broken.mov");
    runJob([&] { manager.startLocalEncodeForFiles({text, video}, outputUrl()); });
    EXPECT_EQ(manager.failedFiles(), FileList{video});

    runJob([&] { manager.retryUploadForFailedFiles(); });
    runJob([&] {
        const QString clip =
            TestMedia::copyNamed(TestMedia::video(320, 180, 1, true), "assert.mov");
        manager.startLocalEncodeForFiles({probedFile(clip)}, outputUrl());
    });
    EXPECT_EQ(power.created, 3);
    // Each job starts its counts from zero.
    EXPECT_EQ(manager.uploadedFilesCount(), 1);
    EXPECT_TRUE(manager.failedFiles().isEmpty());
}
