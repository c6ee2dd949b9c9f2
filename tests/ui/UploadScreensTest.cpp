#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QTemporaryDir>
#include <QTest>

#include "jobs/DataManager.h"
#include "jobs/NotificationNames.h"
#include "support/EventLoop.h"
#include "support/FakePowerAssertion.h"
#include "support/NotificationLog.h"
#include "support/ScreenHarness.h"
#include "support/ServiceProcess.h"
#include "support/ServiceRecords.h"
#include "support/TestMedia.h"
#include "ui/controls/ButtonWithIcon.h"
#include "ui/controls/ButtonWithImage.h"
#include "ui/controls/Checkbox.h"
#include "ui/controls/ImageView.h"
#include "ui/controls/RoundedButton.h"
#include "ui/controls/VerticallyCenteredTextFieldCell.h"
#include "ui/files/FileCell.h"
#include "ui/files/FilesTableView.h"
#include "ui/metadata/CreditsView.h"
#include "ui/metadata/InputView.h"
#include "ui/metadata/TagsView.h"
#include "ui/screens/FilesLocalEncodedViewController.h"
#include "ui/screens/LocalEncodeViewController.h"
#include "ui/screens/MediaLibraryUploadViewController.h"
#include "ui/screens/ProjectUploadViewController.h"
#include "ui/screens/UploadProgressViewController.h"

using namespace NotificationNames;
using namespace ServiceRecords;
using namespace Qt::StringLiterals;

namespace {

// The root screen with its upload screens, a job manager with a settings file of its own, and
// orvale-service on loopback.
class UploadScreens : public testing::Test {
protected:
    void start(const QStringList& serviceArguments = {}) {
        service = std::make_unique<ServiceProcess>(serviceArguments);
        ASSERT_TRUE(service->isRunning()) << service->errorString().toStdString();
        manager.setByteLinesToStandardOutput(false);
        root = BaseViewController::create<LocalEncodeViewController>(&harness, &manager);
        const auto progress = [this]() -> BaseViewController* {
            return BaseViewController::create<UploadProgressViewController>(&harness, &manager);
        };
        root->setProgressScreenFactory(progress);
        root->setUploadScreenFactories(
            [this, progress] { return withProgress<ProjectUploadViewController>(progress); },
            [this, progress] { return withProgress<MediaLibraryUploadViewController>(progress); });
        harness.navigationViewController()->setViewController(root);
    }
    template <class Screen>
    BaseViewController* withProgress(const UploadBaseViewController::ScreenFactory& progress) {
        auto* screen = BaseViewController::create<Screen>(&harness, &manager);
        screen->setProgressScreenFactory(progress);
        return screen;
    }

    // Through the title strip's button and the sheet; true once signed in and the rights are in.
    bool signIn(const QString& user, const QString& password, bool remember = false) {
        QTest::mouseClick(root->userButton(), Qt::LeftButton);
        SignInSheet* sheet = root->signInSheet();
        if (sheet == nullptr || !sheet->isVisible()) {
            return false;
        }
        sheet->addressField()->setText(service->host());
        sheet->usernameField()->setText(user);
        sheet->passwordField()->setText(password);
        sheet->rememberCheckbox()->setChecked(remember);
        const int permissions = log.count(kNotificationDidFinishLoadingPermissions);
        sheet->signInButton()->click();
        waitUntil([&] { return !sheet->isWaitingForAnswer(); });
        return manager.loggedinUser() != nullptr && waitUntil([&] {
                   return log.count(kNotificationDidFinishLoadingPermissions) > permissions;
               });
    }

    template <class Screen>
    Screen* open(ButtonWithImage* source) {
        QTest::mouseClick(source, Qt::LeftButton);
        harness.waitForSlides();
        return harness.current<Screen>();
    }
    static bool choose(QComboBox* popup, const QString& text) {
        if (!waitUntil([&] { return popup->isEnabled() && popup->findText(text) >= 0; })) {
            return false;
        }
        popup->setCurrentIndex(popup->findText(text));
        emit popup->activated(popup->currentIndex());
        return true;
    }
    static bool addFiles(UploadBaseViewController* screen, const QStringList& paths) {
        return screen->addFilesAtPaths(paths) && waitUntil([&] {
                   return screen->dragAndDropEnabled() && screen->waitingForDetailsCount() == 0 &&
                          screen->selectedFiles().size() == paths.size();
               });
    }
    bool waitForJobEnd(int jobs = 1) {
        return waitUntil(
            [&] {
                return log.count(kNotificationDidFinishUploading) +
                           log.count(kNotificationDidFailUploading) >=
                       jobs;
            },
            60000);
    }
    // The fields of one upload as name=value, the token's value left out.
    static QStringList fields(const QJsonObject& upload) {
        QStringList list;
        for (const QJsonValue& field : upload.value("fields").toArray()) {
            const QString name = field["name"].toString();
            list << (name == "auth_token" ? name : name + "=" + field["value"].toString());
        }
        return list;
    }
    // The last upload of that file.
    QJsonObject uploadOf(const QString& fileName) const {
        QJsonObject last;
        for (const QJsonObject& upload : service->uploads()) {
            if (firstFile(upload)["filename"].toString() == fileName) {
                last = upload;
            }
        }
        return last;
    }

    QTemporaryDir settingsDir;
    UserDefaultsManager defaults{settingsDir.filePath("Orvale.ini")};
    FakePowerAssertion power;
    DataManager manager{NotificationCenter::defaultCenter(), power, defaults};
    NotificationLog log{
        NotificationCenter::defaultCenter(),
        {kNotificationDidFinishLoadingPermissions, kNotificationDidChangeEncodedPercent,
         kNotificationDidFinishUploading, kNotificationDidFailUploading}};
    std::unique_ptr<ServiceProcess> service;
    ScreenHarness harness;
    LocalEncodeViewController* root = nullptr;
};

}  // namespace

TEST_F(UploadScreens, SigningInEnablesTheSourcesTheUserHasTheRightFor) {
    start();
    const QString signInFirst = "Sign in first to upload to ";

    struct Case {
        QString user, password;
        bool signedIn, projects, mediaLibrary;
        QString mediaLibTip;
    };
    const QList<Case> cases = {
        {"bob", "wrong", false, false, false, signInFirst + "the media library"},
        {"alice", "wonder&land=1", true, true, true, "Upload to the media library"},
        {"bob", "builder", true, true, false, "Your account may not upload to the media library"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.user.toStdString());
        EXPECT_EQ(signIn(c.user, c.password, true), c.signedIn);
        SignInSheet* sheet = root->signInSheet();
        if (c.signedIn) {
            EXPECT_TRUE(sheet == nullptr || !sheet->isVisible());
            EXPECT_EQ(root->userButton()->titleString(), c.user);
        } else {
            ASSERT_NE(sheet, nullptr);
            EXPECT_EQ(sheet->messageLabel()->text(), "Invalid username or password.");
            EXPECT_TRUE(sheet->passwordField()->text().isEmpty());
            sheet->reject();
        }
        EXPECT_EQ(root->projectButton()->isEnabled(), c.projects);
        EXPECT_EQ(root->mediaLibButton()->isEnabled(), c.mediaLibrary);
        EXPECT_EQ(root->mediaLibButton()->toolTip(), c.mediaLibTip);
        if (!c.signedIn) {
            continue;
        }
        // The password reached the service whole, "&" and "=" included.
        const QJsonObject login = service->requestsTo("get_token").constLast();
        EXPECT_EQ(pairValue(login, "connect_pw"), c.password);
        QTest::mouseClick(root->userButton(), Qt::LeftButton);
        ASSERT_NE(root->userMenu(), nullptr);
        root->userMenu()->actions().constFirst()->trigger();
        EXPECT_EQ(root->userButton()->titleString(), "Sign in");
        EXPECT_EQ(root->projectButton()->toolTip(), signInFirst + "a project folder");
    }

    // Remembered: the last one who asked, without any password (what reaches the disk is the
    // session's test to show).
    QTest::mouseClick(root->userButton(), Qt::LeftButton);
    ASSERT_NE(root->signInSheet(), nullptr);
    EXPECT_EQ(root->signInSheet()->addressField()->text(), service->host());
    EXPECT_EQ(root->signInSheet()->usernameField()->text(), "bob");
    EXPECT_TRUE(root->signInSheet()->passwordField()->text().isEmpty());
}

// The text file goes up at once, the clip once encoded: it is the second request, and fails.
TEST_F(UploadScreens,
       AProjectUploadSendsTheChosenFolderTagDescriptionAndSourceAndRetriesUnencoded) {
    start({"--fault", "put_project_file=status:500,nth:2"});
    ASSERT_TRUE(signIn("bob", "builder"));
    auto* screen = open<ProjectUploadViewController>(root->projectButton());
    ASSERT_NE(screen, nullptr);
    ASSERT_TRUE(choose(screen->projectPopup(), "beta"));
    // The folders in tree order, indented by depth.
    ASSERT_TRUE(waitUntil([&] { return screen->folderList()->count() == 5; }));
    screen->folderList()->setCurrentRow(2);
    EXPECT_EQ(screen->folderList()->currentItem()->text(), "  C");

    const QString clip =
        TestMedia::copyNamed(TestMedia::video(320, 180, 1, true), "window upload.mov");
    const QString notes = TestMedia::textFile("window notes.txt", "not a video\r\n\0x"_qba);
    ASSERT_TRUE(addFiles(screen, {clip, notes}));
    const qsizetype clipRow = screen->selectedFiles().at(0)->isVideo ? 0 : 1;
    Checkbox* preserve = screen->filesTableView()->cellForRow(clipRow)->preserveOriginalCheckbox();
    ASSERT_TRUE(preserve->isVisible());
    // Only videos have sizes to choose and an original to keep.
    FileCell* notesRow = screen->filesTableView()->cellForRow(1 - clipRow);
    EXPECT_FALSE(notesRow->selectFormatPopupButton()->isVisible());
    EXPECT_FALSE(notesRow->preserveOriginalCheckbox()->isVisible());
    QTest::mouseClick(preserve, Qt::LeftButton);
    screen->tagsView()->tagTextField()->setText("sea");
    screen->tagsView()->addTagsButtonDidTouch();
    screen->descriptionField()->textField()->setText("a=b&c");

    QTest::mouseClick(screen->uploadButton(), Qt::LeftButton);
    auto* progress = harness.current<UploadProgressViewController>();
    ASSERT_NE(progress, nullptr);
    ASSERT_TRUE(waitForJobEnd());
    ASSERT_EQ(log.count(kNotificationDidFailUploading), 1);
    ASSERT_TRUE(waitUntil([&] { return progress->alert() != nullptr; }));
    EXPECT_TRUE(progress->alert()->text().startsWith("Cannot connect to the Orvale server."));
    progress->alert()->done(QMessageBox::Ok);
    ASSERT_TRUE(
        waitUntil([&] { return harness.current<FilesLocalEncodedViewController>() != nullptr; }));
    harness.waitForSlides();
    log.received.clear();
    // Once only, however quick the second click; the progress screen follows.
    ButtonWithIcon* tryAgain = harness.current<FilesLocalEncodedViewController>()->tryAgainButton();
    QTest::mouseClick(tryAgain, Qt::LeftButton);
    QTest::mouseClick(tryAgain, Qt::LeftButton);
    EXPECT_NE(harness.current<UploadProgressViewController>(), nullptr);
    ASSERT_TRUE(waitForJobEnd());
    EXPECT_EQ(log.count(kNotificationDidFinishUploading), 1);
    EXPECT_TRUE(log.percents().isEmpty());  // nothing was encoded again
    EXPECT_TRUE(manager.failedFiles().isEmpty());
    const QList<QJsonObject> uploads = service->uploads();
    ASSERT_EQ(uploads.size(), 3);
    EXPECT_EQ(uploads[2]["status"].toInt(), 200);

    const QStringList expected{"auth_token", "description=a=b&c", "folder_id=103",
                               "output_format=json", "tags[]=sea"};
    const QJsonObject clipUpload = uploadOf("window upload.mov");
    EXPECT_EQ(fields(clipUpload), expected);
    // The original goes up beside the encode; how the parts are framed is the service's to show.
    const QJsonArray clipParts = clipUpload["files"].toArray();
    ASSERT_EQ(clipParts.size(), 2);
    EXPECT_EQ(clipParts[1]["field"].toString(), "media_file_alt");
    const QJsonObject notesUpload = uploadOf("window notes.txt");
    EXPECT_EQ(fields(notesUpload), expected);
    EXPECT_EQ(notesUpload["files"].toArray().size(), 1);
    EXPECT_EQ(storedContent(firstFile(notesUpload)), contentsOf(notes));
}

TEST_F(UploadScreens, AMediaLibraryUploadSendsOnlyTheCreditsThatWereFilledIn) {
    start();
    ASSERT_TRUE(signIn("alice", "wonder&land=1"));
    auto* screen = open<MediaLibraryUploadViewController>(root->mediaLibButton());
    ASSERT_NE(screen, nullptr);
    ASSERT_TRUE(choose(screen->categoryPopup(), "Footage"));
    ASSERT_TRUE(waitUntil([&] { return screen->creditsView()->creditInputViews().size() == 2; }));
    screen->creditsView()->creditInputViews()[0]->textField()->setText("Jane Doe");
    const QString notes = TestMedia::textFile("window credits.txt", "credited");
    ASSERT_TRUE(addFiles(screen, {notes}));

    ASSERT_TRUE(harness.activate());
    QTest::keyClick(harness.window(), Qt::Key_Return, Qt::ControlModifier);
    auto* progress = harness.current<UploadProgressViewController>();
    ASSERT_NE(progress, nullptr);
    EXPECT_EQ(progress->uploadingImage()->imageName(), "illustration_media_library2_big.png");
    ASSERT_TRUE(waitForJobEnd());
    ASSERT_EQ(service->uploads().size(), 1);
    EXPECT_EQ(
        fields(service->uploads()[0]),
        (QStringList{"auth_token", "credits_3=Jane Doe", "media_type_id=1", "output_format=json"}));

    // Nothing failed: the results have no list and no Try Again.
    ASSERT_TRUE(
        waitUntil([&] { return harness.current<FilesLocalEncodedViewController>() != nullptr; }));
    auto* results = harness.current<FilesLocalEncodedViewController>();
    EXPECT_EQ(results->uploadCountLabel()->text(), "1 file(s) completed");
    EXPECT_FALSE(results->scrollView()->isVisibleTo(results));
    EXPECT_FALSE(results->tryAgainButton()->isVisibleTo(results));
}
