#include <gtest/gtest.h>

#include <QLabel>
#include <QScrollArea>
#include <QTemporaryDir>
#include <QTest>

#include "jobs/DataManager.h"
#include "jobs/NotificationNames.h"
#include "support/FakePowerAssertion.h"
#include "support/NotificationLog.h"
#include "support/RecordingScreen.h"
#include "support/ScreenHarness.h"
#include "support/VideoFile.h"
#include "ui/controls/ButtonWithIcon.h"
#include "ui/controls/RoundedButton.h"
#include "ui/controls/ViewGeometry.h"
#include "ui/screens/FilesLocalEncodedViewController.h"
#include "ui/screens/UploadProgressViewController.h"

using namespace NotificationNames;

namespace {

class ResultsScreen : public testing::Test {
protected:
    // A real local-encode job whose videos fail at once (their sources are gone), beside one
    // file that needs no encoding; it leaves the job manager with `failed` failed files.
    void runJobWithFailures(int failed) {
        FileList files = {std::make_shared<File>(QUrl::fromLocalFile(dir.filePath("notes.txt")))};
        for (int i = 0; i < failed; ++i) {
            const FilePtr file = videoFile(dir.filePath(QString("gone-%1.mov").arg(i)), 320, 180,
                                           1000, "300k", "400k");
            file->videoDetail->widthToEncode = 320;
            files << file;
        }
        const int ends = log.count(kNotificationDidFinishUploading);
        ASSERT_TRUE(
            manager.startLocalEncodeForFiles(files, QUrl::fromLocalFile(dir.filePath("out")))
                .isEmpty());
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return log.count(kNotificationDidFinishUploading) > ends; }, 30000));
    }
    // The file selection screen, the progress screen and the results on top, as after a job.
    FilesLocalEncodedViewController* showResults() {
        auto* root = BaseViewController::create<RecordingScreen>(&harness, &manager);
        harness.window()->navigationViewController()->setViewController(root);
        auto* progress =
            BaseViewController::create<UploadProgressViewController>(&harness, &manager);
        root->pushViewController(progress, false);
        auto* results =
            BaseViewController::create<FilesLocalEncodedViewController>(&harness, &manager);
        progress->pushViewController(results, false);
        return results;
    }

    QTemporaryDir dir;
    FakePowerAssertion power;
    NotificationCenter& center = NotificationCenter::defaultCenter();
    DataManager manager{center, power};
    NotificationLog log{center, {kNotificationDidFinishUploading}};
    ScreenHarness harness;
};

}  // namespace

// Where each part of the stack goes is the results layout's test; here the screen follows it.
TEST_F(ResultsScreen, ShowsTheCountAndTheFailedFilesInAStackCentredAndGoesHomeOnce) {
    for (const int failed : {0, 7}) {
        SCOPED_TRACE(failed);
        runJobWithFailures(failed);
        FilesLocalEncodedViewController* results = showResults();
        EXPECT_EQ(results->uploadCountLabel()->text(), "0 file(s) completed");
        EXPECT_EQ(results->scrollView()->isVisibleTo(results), failed > 0);
        EXPECT_EQ(results->tryAgainButton()->isVisibleTo(results), failed > 0);
        const QRectF stack = ViewGeometry::frame(results->componentsView());
        EXPECT_NEAR(stack.y(), (562 - stack.height()) / 2.0, 0.5);
        if (failed > 0) {
            EXPECT_EQ(stack.height(), 463);
            EXPECT_EQ(results->scrollView()->height(), 130);  // four rows in sight
            ASSERT_EQ(results->logRows().size(), failed);
            // Rows 26 apart from the list's bottom, in the order of the failed files.
            EXPECT_EQ(ViewGeometry::frame(results->logRows().last()),
                      QRectF(0, 26 * (failed - 1), results->logView()->width(), 20));
            EXPECT_EQ(results->logRows().first()->text(), "gone-0.mov");
        }
        QTest::mouseClick(results->homeButton(), Qt::LeftButton);
        QTest::mouseClick(results->homeButton(), Qt::LeftButton);
        EXPECT_FALSE(results->homeButton()->isActionEnabled());
        ASSERT_TRUE(harness.waitForSlides());  // the popped screens are gone after their slide
        EXPECT_EQ(harness.navigationView().viewStack().size(), 1);
    }
}
