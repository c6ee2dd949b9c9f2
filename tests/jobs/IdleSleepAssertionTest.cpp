#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <functional>

#include "jobs/DataManager.h"
#include "jobs/NotificationNames.h"
#include "support/EventLoop.h"
#include "support/FakePowerAssertion.h"
#include "support/JobFiles.h"
#include "support/NotificationLog.h"
#include "support/TestMedia.h"

using namespace NotificationNames;

namespace {

// Jobs of both kinds one after the other, each of which must hold the assertion while it runs,
// end exactly once, and leave none held. Uploads go nowhere (no one is signed in), which ends
// them as failed batches.
class IdleSleepAssertion : public testing::Test {
protected:
    void runJob(const std::function<void()>& start) {
        const int endsBefore = ends();
        start();
        EXPECT_EQ(power.held, 1);
        ASSERT_TRUE(waitUntil([&] { return ends() > endsBefore; }, 60000));
        waitUntil([] { return false; }, 300);
        EXPECT_EQ(ends(), endsBefore + 1);
        EXPECT_EQ(power.held, 0);
    }
    int ends() const {
        return log.count(kNotificationDidFinishUploading) +
               log.count(kNotificationDidFailUploading);
    }
    QUrl outputUrl() const { return QUrl::fromLocalFile(output.path()); }

    QTemporaryDir settingsDir;
    UserDefaultsManager settings{settingsDir.filePath("settings.conf")};
    NotificationCenter center;
    FakePowerAssertion power;
    DataManager manager{center, power, settings};
    NotificationLog log{center, {kNotificationDidFinishUploading, kNotificationDidFailUploading}};
    QTemporaryDir output;
};

}  // namespace

TEST_F(IdleSleepAssertion, LocalJobWhoseVideosAllFailThenTheUploadThatRetriesItThenALocalJob) {
    const FilePtr text =
        std::make_shared<File>(QUrl::fromLocalFile(TestMedia::textFile("assert-notes.txt", "x")));
    const FilePtr video = damagedClip("assert-broken.mov");
    runJob([&] { manager.startLocalEncodeForFiles({text, video}, outputUrl()); });
    EXPECT_EQ(log.names().last(), kNotificationDidFinishUploading);
    EXPECT_EQ(manager.failedFiles(), FileList{video});

    runJob([&] { manager.retryUploadForFailedFiles(); });
    runJob([&] {
        const QString clip =
            TestMedia::copyNamed(TestMedia::video(320, 180, 1, true), "assert.mov");
        manager.startLocalEncodeForFiles({probedFile(clip)}, outputUrl());
    });
    EXPECT_EQ(power.created, 3);
}
