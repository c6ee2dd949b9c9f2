#include <gtest/gtest.h>

#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "jobs/DataManager.h"
#include "jobs/NotificationNames.h"
#include "support/DropEvents.h"
#include "support/EventLoop.h"
#include "support/FakePowerAssertion.h"
#include "support/NotificationLog.h"
#include "support/ScopedEnvironment.h"
#include "support/ScreenHarness.h"
#include "support/ServiceProcess.h"
#include "support/TestMedia.h"
#include "ui/controls/ButtonWithImage.h"
#include "ui/controls/ImageView.h"
#include "ui/controls/RoundedButton.h"
#include "ui/files/DragAndDropDestinationView.h"
#include "ui/files/FileCell.h"
#include "ui/files/FilesTableView.h"
#include "ui/screens/LocalEncodeViewController.h"

namespace {

using namespace NotificationNames;

// Acts on the file panel once the screen waits in it.
void whenPanelOpens(std::function<void(QFileDialog&)> act) {
    auto* poll = new QTimer;
    QObject::connect(poll, &QTimer::timeout, [poll, act = std::move(act)] {
        if (auto* panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
            poll->stop();
            poll->deleteLater();
            act(*panel);
        }
    });
    poll->start(10);
}

// Typed into the name field: a selection in the view is there only once the folder is read.
void choose(QFileDialog& panel, const QString& path) {
    panel.setDirectory(QFileInfo(path).absolutePath());
    panel.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
        ->setText(QFileInfo(path).fileName());
    static_cast<QDialog&>(panel).accept();
}

// Takes the links the screen would open in the browser.
class LinkCatcher : public QObject {
    Q_OBJECT

public:
    LinkCatcher() { QDesktopServices::setUrlHandler(QStringLiteral("http"), this, "open"); }
    ~LinkCatcher() override { QDesktopServices::unsetUrlHandler(QStringLiteral("http")); }

    QList<QUrl> opened;

public slots:
    void open(const QUrl& url) { opened.append(url); }
};

class LocalEncodeScreen : public testing::Test {
protected:
    // The maker's site must be chosen before the screen is set up.
    void open(const QByteArray& makerSite = "none") {
        site.reset();  // the earlier value goes back first
        site = std::make_unique<ScopedEnvironment>("ORVALE_MAKER_SITE", makerSite);
        screen = BaseViewController::create<LocalEncodeViewController>(&harness, &manager);
        screen->setProgressScreenFactory([this] {
            progress = BaseViewController::create<BaseViewController>(&harness, &manager);
            return progress.data();
        });
        harness.navigationViewController()->setViewController(screen);
        ASSERT_TRUE(harness.activate());
    }

    // A one-second clip under the given name in this test's folder.
    QString clip(const QString& name) {
        const QString path = folder.filePath(name);
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile::copy(TestMedia::video(640, 360, 1.0), path);
        return path;
    }
    QString textFile(const QString& name) {
        QFile file(folder.filePath(name));
        file.open(QIODevice::WriteOnly);
        file.write("not a video");
        return file.fileName();
    }

    bool drop(const QStringList& paths) {
        return dropPathsOn(*screen->dragAndDropDestinationView(), paths);
    }
    bool waitForBatch() {
        return waitUntil(
            [&] { return screen->waitingForDetailsCount() == 0 && screen->dragAndDropEnabled(); });
    }
    QStringList rowNames() const {
        QStringList names;
        for (const FilePtr& file : screen->selectedFiles()) {
            names << file->fileName();
        }
        return names;
    }
    QString takeAlert() {
        QMessageBox* alert = screen->alert();
        if (alert == nullptr || !alert->isVisible()) {
            return {};
        }
        const QString text = alert->text();
        alert->done(QMessageBox::Ok);
        harness.activate();
        return text;
    }
    bool placeholderShown() const { return screen->filesPlaceholder()->isVisible(); }

    FakePowerAssertion power;
    DataManager manager{NotificationCenter::defaultCenter(), power};
    NotificationLog log{NotificationCenter::defaultCenter(),
                        {kNotificationDidFinishLoadingDetailsForFile, kNotificationIsLocalEncode,
                         kNotificationDidFinishUploading}};
    QTemporaryDir folder;
    std::unique_ptr<ScopedEnvironment> site;
    ScreenHarness harness;
    LocalEncodeViewController* screen = nullptr;
    QPointer<BaseViewController> progress;
};

}  // namespace

TEST_F(LocalEncodeScreen, ADroppedFolderGivesItsVideosRowsAndNamesWhatItRefused) {
    open();
    EXPECT_TRUE(placeholderShown());
    EXPECT_EQ(LocalEncodeViewController::outputDirectory(),
              QUrl::fromLocalFile(QDir::home().filePath("Orvale Kesto Output")));

    // Never-probed types are refused at once, the others once probing says no; both named in
    // lower case.
    clip("drop/a.mov");
    clip("drop/.hidden.mov");
    textFile("drop/B.TXT");
    textFile("drop/d.doc");
    ASSERT_TRUE(drop({folder.filePath("drop")}));
    QCoreApplication::processEvents();
    EXPECT_EQ(screen->statusLabel()->text(), "Reading 2 files...");
    // Refused while the first drop is being read, also through the command-line way in.
    EXPECT_FALSE(screen->addFilesAtPaths({clip("late.mov")}));

    ASSERT_TRUE(waitForBatch());
    EXPECT_EQ(rowNames(), QStringList{"a.mov"});
    EXPECT_EQ(takeAlert(), "File(s) not supported: b.txt, d.doc");
    EXPECT_FALSE(placeholderShown());
    EXPECT_TRUE(waitUntil([&] { return screen->filesTableView()->hasFocus(); }));
    ASSERT_TRUE(waitUntil([&] { return screen->statusLabel()->text().startsWith("1 file"); }));

    // This screen offers no "Do Not Encode".
    QComboBox* popup = screen->filesTableView()->cellForRow(0)->selectFormatPopupButton();
    EXPECT_EQ(popup->findText("Do Not Encode"), -1);

    QTest::mouseClick(screen->filesTableView()->cellForRow(0)->removeButton(), Qt::LeftButton);
    EXPECT_TRUE(placeholderShown());
}

TEST_F(LocalEncodeScreen, AStartPushesProgressFirstAndLateProbeResultsAddNoRows) {
    open();
    QTest::mouseClick(screen->uploadButton(), Qt::LeftButton);
    EXPECT_EQ(takeAlert(), "Please Select a File");
    EXPECT_TRUE(screen->uploadButton()->isActionEnabled());
    EXPECT_EQ(progress, nullptr);

    QPointer<BaseViewController> currentAtJobStart;
    NotificationCenter::defaultCenter().addObserver(
        &log, kNotificationIsLocalEncode, [&](const Notification&) {
            currentAtJobStart = harness.navigationView().currentViewController();
        });
    ASSERT_TRUE(drop({clip("a.mov")}));
    ASSERT_TRUE(waitForBatch());
    const FileList started = screen->selectedFiles();

    // b.mov is still being probed when Ctrl+Return starts the job.
    ASSERT_TRUE(drop({clip("b.mov")}));
    QTest::keyClick(harness.window(), Qt::Key_Return, Qt::ControlModifier);
    ASSERT_NE(progress, nullptr);
    EXPECT_EQ(currentAtJobStart, progress);
    EXPECT_EQ(manager.filesQueue(), started);
    EXPECT_TRUE(rowNames().isEmpty());
    EXPECT_FALSE(screen->isScreenVisible());
    EXPECT_TRUE(screen->dragAndDropEnabled());

    // Back home before b's probe ends: its result still adds nothing.
    progress->popViewControllerAnimated(false);
    EXPECT_TRUE(screen->isScreenVisible());
    ASSERT_TRUE(
        waitUntil([&] { return log.count(kNotificationDidFinishLoadingDetailsForFile) == 2; }));
    QCoreApplication::processEvents();
    EXPECT_TRUE(rowNames().isEmpty());
    EXPECT_TRUE(placeholderShown());
    EXPECT_TRUE(waitUntil([&] { return log.count(kNotificationDidFinishUploading) == 1; }, 60000));
}

TEST_F(LocalEncodeScreen, ThePanelsAddFilesOnceAndTheOutputFolderIsCheckedAtTheStart) {
    open();
    const QString path = clip("a.mov");
    for (int pick = 0; pick < 2; ++pick) {
        whenPanelOpens([&](QFileDialog& panel) {
            EXPECT_EQ(panel.fileMode(), QFileDialog::ExistingFiles);
            choose(panel, path);
        });
        QTest::mouseClick(screen->selectFilesButton(), Qt::LeftButton);
        ASSERT_TRUE(waitForBatch());
        ASSERT_TRUE(waitUntil([&] { return screen->selectFilesButton()->isActionEnabled(); }));
    }
    EXPECT_EQ(rowNames(), QStringList{"a.mov"});
    EXPECT_EQ(takeAlert(), "");

    // Ctrl+O opens the same panel; "Select files" waits a moment after it closes.
    ASSERT_TRUE(harness.activate());
    whenPanelOpens([](QFileDialog& panel) { panel.reject(); });
    QTest::keyClick(harness.window(), Qt::Key_O, Qt::ControlModifier);
    EXPECT_FALSE(screen->selectFilesButton()->isActionEnabled());
    EXPECT_TRUE(waitUntil([&] { return screen->selectFilesButton()->isActionEnabled(); }));
    EXPECT_EQ(rowNames(), QStringList{"a.mov"});

    const QString chosen = folder.filePath("out");
    QDir().mkpath(chosen);
    whenPanelOpens([&](QFileDialog& panel) {
        EXPECT_EQ(panel.fileMode(), QFileDialog::Directory);
        choose(panel, chosen);
    });
    QTest::mouseClick(screen->selectOutDirButton(), Qt::LeftButton);
    EXPECT_EQ(LocalEncodeViewController::outputDirectory(), QUrl::fromLocalFile(chosen));
    EXPECT_EQ(screen->outPathDisplay()->toolTip(), chosen);

    // The folder became a file before the start: the start is refused and the list kept.
    QDir(chosen).removeRecursively();
    textFile("out");
    QTest::mouseClick(screen->uploadButton(), Qt::LeftButton);
    EXPECT_TRUE(takeAlert().startsWith("Cannot write to the output folder " + chosen));
    EXPECT_EQ(rowNames(), QStringList{"a.mov"});
    ASSERT_TRUE(harness.waitForSlides());
    EXPECT_EQ(harness.navigationView().currentViewController(), screen);
    EXPECT_TRUE(screen->uploadButton()->isActionEnabled());
    EXPECT_EQ(log.count(kNotificationIsLocalEncode), 0);
}

TEST_F(LocalEncodeScreen, ThePromotionComesFromTheMakersSiteOnlyWhenOneIsConfigured) {
    LinkCatcher links;
    open("none");
    EXPECT_EQ(screen->adImageView()->imageName(), "illustration_promotion.png");
    QTest::mouseClick(screen->adImageView(), Qt::LeftButton);
    EXPECT_TRUE(links.opened.isEmpty());

    ServiceProcess service;
    ASSERT_TRUE(service.isRunning()) << service.errorString().toStdString();
    open(service.host().toUtf8());
    ASSERT_TRUE(waitUntil([&] { return !screen->adImageView()->pixmap().isNull(); }));
    EXPECT_EQ(screen->adLink(), QUrl(service.baseUrl() + "/demo"));
    QTest::mouseClick(screen->adImageView(), Qt::LeftButton);
    EXPECT_EQ(links.opened, QList<QUrl>{screen->adLink()});
}

#include "LocalEncodeScreenTest.moc"
