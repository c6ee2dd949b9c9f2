#include <gtest/gtest.h>

#include <QLabel>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>

#include "jobs/DataManager.h"
#include "jobs/NotificationNames.h"
#include "support/FakePowerAssertion.h"
#include "support/JobFiles.h"
#include "support/RecordingScreen.h"
#include "support/ScreenHarness.h"
#include "ui/controls/ButtonWithIcon.h"
#include "ui/controls/ImageView.h"
#include "ui/controls/RoundedButton.h"
#include "ui/controls/RoundedView.h"
#include "ui/controls/ViewGeometry.h"
#include "ui/screens/FilesLocalEncodedViewController.h"
#include "ui/screens/UploadProgressViewController.h"

using namespace NotificationNames;

namespace {

class ProgressScreen : public testing::Test {
protected:
    ProgressScreen() {
        auto* root = BaseViewController::create<RecordingScreen>(&harness, &manager);
        harness.window()->navigationViewController()->setViewController(root);
        root->pushViewController(screen, false);
    }

    static void post(const QString& name, const QVariant& object = {}) {
        NotificationCenter::defaultCenter().post(name, object);
    }
    bool resultsShown() const {
        return harness.current<FilesLocalEncodedViewController>() != nullptr;
    }

    FakePowerAssertion power;
    DataManager manager{NotificationCenter::defaultCenter(), power};
    ScreenHarness harness;
    UploadProgressViewController* screen =
        BaseViewController::create<UploadProgressViewController>(&harness, &manager);
};

}  // namespace

TEST_F(ProgressScreen, BarsFollowTheNumbersTheyAreGivenAndTheResultsFollowTheEnd) {
    QWidget* encoded = screen->convertedProgressView();
    QWidget* uploaded = screen->uploadedProgressView();
    const int track = screen->totalView()->width();
    // Where the stub starts and ends is the bar rules' test.
    post(kNotificationDidChangeEncodedPercent, 3.0f);
    EXPECT_EQ(encoded->width(), qRound(track * 0.07));
    post(kNotificationDidChangeEncodedPercent, "20");  // not a number: nothing changes
    EXPECT_EQ(screen->convertedTextField()->text(), "3%");
    post(kNotificationDidChangeEncodedPercent, 20.0f);  // out of the stub range at once
    EXPECT_EQ(encoded->width(), qRound(track * 0.2));
    post(kNotificationDidChangeEncodedPercent, 45.7f);
    EXPECT_TRUE(screen->isBarAnimating(encoded));
    EXPECT_EQ(screen->convertedTextField()->text(), "45%");

    post(kNotificationDidChangeUploadedPercent, 50.0);
    post(kNotificationDidChangeUploadedBytes, QStringLiteral("5 MB / 10 MB"));
    post(kNotificationDidChangeUploadedPercent, 99.5);
    EXPECT_EQ(screen->uploadedTextField()->text(), "50%");
    EXPECT_EQ(screen->uploadedBytesTextField()->text(), "5 MB / 10 MB");
    EXPECT_TRUE(QTest::qWaitFor([&] { return uploaded->width() == qRound(track * 0.99); }));

    post(kNotificationDidFinishUploading);
    EXPECT_EQ(screen->uploadedTextField()->text(), "99%");
    EXPECT_FALSE(resultsShown());  // half a second later
    EXPECT_TRUE(QTest::qWaitFor([&] { return resultsShown(); }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return uploaded->width() == qRound(track * 0.995); }));
}

// A failed upload or a full disk ends the job: the results follow the alert, never before it.
// An encode problem skips one file: dismissing its alert leaves the progress on show.
TEST_F(ProgressScreen, AlertsOfAFailedUploadOrAFullDiskAloneLeadToTheResults) {
    auto error = std::make_shared<ErrorResponse>();
    error->message = QStringLiteral("Cannot connect to the Orvale server.");
    const std::tuple<QString, QVariant, QString, bool> cases[] = {
        {kNotificationDidOccureProblemWhileEncoding,
         QVariant::fromValue(std::make_shared<File>(QUrl::fromLocalFile("/nowhere/b.mov"))),
         "Ooops! Something went wrong while encoding video: b.mov. Video will be skipped.", false},
        {kNotificationDidFailUploading, QVariant::fromValue(ErrorResponsePtr(error)),
         error->message, true},
        {kNotificationDidRanOutOfSpaceOnDisk, QVariant(),
         "No space left on device. Upload will be aborted.", true}};
    for (const auto& [name, object, text, resultsFollow] : cases) {
        SCOPED_TRACE(text.toStdString());
        ASSERT_TRUE(harness.waitForSlides());
        harness.navigationView().setViewController(screen);
        screen->activateView();
        post(name, object);
        ASSERT_NE(screen->alert(), nullptr);
        EXPECT_EQ(screen->alert()->text(), text);
        QTest::qWait(UploadProgressViewController::kResultsDelayMs + 100);
        EXPECT_FALSE(resultsShown());
        screen->alert()->done(QMessageBox::Ok);
        EXPECT_EQ(QTest::qWaitFor([&] { return resultsShown(); }, resultsFollow ? 5000 : 300),
                  resultsFollow);
        EXPECT_TRUE(!resultsFollow || screen->stopButton()->isHidden());
    }
}

TEST_F(ProgressScreen, ALocalEncodeStoppedByEscapeInTheSecondOfThreeFilesKeepsOneDone) {
    const FileList files = {
        probedFile(TestMedia::copyNamed(TestMedia::video(320, 180, 1, true), "ui-stop-a.mov")),
        probedFile(TestMedia::copyNamed(TestMedia::video(640, 360, 20, true), "ui-stop-b.mov")),
        probedFile(TestMedia::copyNamed(TestMedia::video(320, 180, 1, true), "ui-stop-c.mov"))};
    QTemporaryDir output;
    ASSERT_TRUE(
        manager.startLocalEncodeForFiles(files, QUrl::fromLocalFile(output.path())).isEmpty());
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return screen->fileTextField()->text() == "ui-stop-b.mov \u00b7 file 2 of 3"; },
        30000));
    // A local encode shows only the encode indicators.
    EXPECT_EQ(screen->uploadingImage()->imageName(), "illustration_desktop_big.png");
    EXPECT_FALSE(screen->uploadedTextField()->isVisible());
    EXPECT_FALSE(screen->uploadedBytesTextField()->isVisible());

    ASSERT_TRUE(harness.activate());
    QTest::keyClick(harness.window(), Qt::Key_Escape);
    ASSERT_NE(screen->stopQuestion(), nullptr);
    EXPECT_EQ(screen->stopQuestion()->text(),
              "Stop encoding? The file being encoded now is discarded; finished files are kept.");
    EXPECT_TRUE(manager.isJobRunning());  // nothing stops before the answer
    screen->stopQuestion()->button(QMessageBox::Yes)->click();

    ASSERT_TRUE(QTest::qWaitFor([&] { return resultsShown(); }, 30000));
    auto* results = harness.current<FilesLocalEncodedViewController>();
    EXPECT_EQ(results->uploadCountLabel()->text().section(' ', 0, 0), "1");
    // The failed files in their order, in a list centred with the rest of the stack.
    ASSERT_EQ(results->logRows().size(), 2);
    EXPECT_EQ(results->logRows().first()->text(), "ui-stop-b.mov");
    EXPECT_TRUE(results->tryAgainButton()->isVisibleTo(results));
    const QRectF stack = ViewGeometry::frame(results->componentsView());
    EXPECT_NEAR(stack.y(), (562 - stack.height()) / 2.0, 0.5);

    // Home once, however quick the second click; the popped screens go after their slide.
    QTest::mouseClick(results->homeButton(), Qt::LeftButton);
    QTest::mouseClick(results->homeButton(), Qt::LeftButton);
    EXPECT_FALSE(results->homeButton()->isActionEnabled());
    ASSERT_TRUE(harness.waitForSlides());
    EXPECT_EQ(harness.navigationView().viewStack().size(), 1);
}
