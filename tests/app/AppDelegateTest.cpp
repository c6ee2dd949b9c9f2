#include <gtest/gtest.h>

#include <QDirIterator>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "app/AppDelegate.h"
#include "jobs/DataManager.h"
#include "platform/WorkFolder.h"
#include "support/EventLoop.h"
#include "support/FakePowerAssertion.h"
#include "support/JobFiles.h"
#include "support/RecordingSink.h"
#include "support/ScopedEnvironment.h"
#include "support/ServiceProcess.h"
#include "support/TestMedia.h"
#include "ui/controls/RoundedButton.h"
#include "ui/screens/UploadBaseViewController.h"

namespace {

class RefusedPowerAssertion : public FakePowerAssertion {
public:
    int create(const QString& name, quint32& handle) override {
        FakePowerAssertion::create(name, handle);
        return 1;
    }
};

// One launch of the application with its own settings, crash folders and job manager; quitting
// ends no event loop but is counted.
class LaunchedApp : public testing::Test {
protected:
    ~LaunchedApp() override { AppDelegateInterface::setApplicationDelegate(nullptr); }

    void launch(PowerAssertion& assertion) {
        delegate = std::make_unique<AppDelegate>(
            AppDelegate::Parts{manager,
                               center,
                               assertion,
                               {settings,
                                center,
                                crashReporter,
                                crashReports,
                                {{crashLogs()}, ApplicationInfo::current()}},
                               QString(),
                               QDBusConnection(QStringLiteral("no bus")),
                               [this] { ++quits; }});
        AppDelegateInterface::setApplicationDelegate(delegate.get());
        delegate->applicationDidFinishLaunching();
    }
    void launch() { launch(power); }

    QString crashLogs() const { return dir.filePath("DiagnosticReports"); }
    CrashReporter::Options reporterOptions() const {
        CrashReporter::Options options = CrashReporter::Options::defaults();
        options.pendingRecordFolder = dir.filePath("pending");
        options.crashLogDirectory = crashLogs();
        return options;
    }

    static QStringList encodesInWorkFolder() {
        QStringList files;
        QDirIterator it(WorkFolder::current().processFolder(), QDir::Files,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            files << it.next();
        }
        return files;
    }

    static void answer(QMessageBox* alert, const QString& text) {
        for (QAbstractButton* button : alert->buttons()) {
            if (button->text() == text) {
                button->click();
                return;
            }
        }
        ADD_FAILURE() << "no button " << text.toStdString();
    }

    QTemporaryDir dir;
    QSettings settings{dir.filePath("settings.ini"), QSettings::IniFormat};
    NotificationCenter center;
    FakePowerAssertion power;
    DataManager manager{center, power};
    CrashReporter crashReporter{reporterOptions()};
    CrashReportManager crashReports{settings};
    int quits = 0;
    std::unique_ptr<AppDelegate> delegate;
};

QAction* quitAction(MainWindow& window) {
    for (QAction* menu : window.menuBar()->actions()) {
        for (QAction* action : menu->menu()->actions()) {
            if (action->shortcut() == QKeySequence(QKeySequence::Quit)) {
                return action;
            }
        }
    }
    return nullptr;
}

}  // namespace

TEST_F(LaunchedApp, QuitAsksEveryTimeNoKeepsTheJobAndYesRemovesItsUnfinishedEncode) {
    launch();
    QTemporaryDir output;
    const FilePtr clip =
        probedFile(TestMedia::copyNamed(TestMedia::video(960, 540, 30, true), "quit-flow.mov"));
    ASSERT_TRUE(
        manager.startLocalEncodeForFiles({clip}, QUrl::fromLocalFile(output.path())).isEmpty());
    ASSERT_TRUE(waitUntil([] { return !encodesInWorkFolder().isEmpty(); }, 30000));

    EXPECT_FALSE(delegate->applicationShouldTerminate());
    QMessageBox* alert = delegate->quitConfirmation();
    ASSERT_NE(alert, nullptr);
    EXPECT_EQ(alert->text(), "Do you really want to exit Orvale?");
    answer(alert, "No");
    EXPECT_FALSE(delegate->applicationCanTerminate());
    EXPECT_TRUE(manager.isEncoding());

    // Ctrl+Q and the window's close button ask again.
    QAction* quit = quitAction(*delegate->window());
    ASSERT_NE(quit, nullptr);
    quit->trigger();
    ASSERT_NE(delegate->quitConfirmation(), nullptr);
    answer(delegate->quitConfirmation(), "No");
    delegate->window()->close();
    EXPECT_TRUE(delegate->window()->isVisible());
    ASSERT_NE(delegate->quitConfirmation(), nullptr);
    EXPECT_EQ(quits, 0);

    answer(delegate->quitConfirmation(), "Yes");
    EXPECT_TRUE(delegate->applicationCanTerminate());
    EXPECT_EQ(quits, 1);
    EXPECT_TRUE(waitUntil([] { return encodesInWorkFolder().isEmpty(); }));
    EXPECT_TRUE(QDir(output.path()).isEmpty());
}

// Without a window manager nobody gives the window back its keyboard once the question is gone,
// and the shortcuts of the screen would go nowhere.
TEST_F(LaunchedApp, NoGivesTheKeyboardBackToTheWidgetThatHadIt) {
    launch();
    MainWindow* window = delegate->window();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    QWidget* had = window->findChild<UploadBaseViewController*>()->selectFilesButton();
    had->setFocus(Qt::OtherFocusReason);
    ASSERT_TRUE(waitUntil([&] { return QApplication::focusWidget() == had; }));

    delegate->applicationShouldTerminate();
    ASSERT_NE(delegate->quitConfirmation(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(delegate->quitConfirmation()));
    answer(delegate->quitConfirmation(), "No");
    settle();  // the window system's word on who has the keyboard comes late
    waitUntil([&] { return QApplication::focusWidget() == had; });
    EXPECT_EQ(QApplication::focusWidget(), had);
    EXPECT_TRUE(window->isActiveWindow());
}

TEST_F(LaunchedApp, WillSleepStopsUploadsOnlyWhenTheAssertionWasTaken) {
    RefusedPowerAssertion refused;
    launch(refused);
    ScopedLogRecorder recorder;
    delegate->receiveSleepNote("PrepareForSleep");
    EXPECT_FALSE(recorder.sink().contains("stopUploading"));
    EXPECT_EQ(refused.released, 0);

    launch(power);
    ScopedLogRecorder granted;
    delegate->receiveSleepNote("PrepareForSleep");
    EXPECT_TRUE(granted.sink().contains("stopUploading"));
    EXPECT_EQ(power.held, 0);
}

TEST_F(LaunchedApp, ACrashOfThePreviousRunReachesTheServerOnBothChannels) {
    ServiceProcess service;
    ASSERT_TRUE(service.isRunning()) << service.errorString().toStdString();
    ScopedEnvironment server("ORVALE_CRASH_SERVER", service.host().toUtf8());
    settings.setValue(CrashReportSettings::kLastCrashReportDateKey,
                      QDateTime::currentDateTimeUtc().addDays(-1));
    QProcess child;
    child.start(ORVALE_CRASH_CHILD_PATH,
                {"uncaught-exception", reporterOptions().pendingRecordFolder, crashLogs()});
    ASSERT_TRUE(child.waitForFinished(30000));
    ASSERT_EQ(child.exitStatus(), QProcess::CrashExit);

    launch();
    ASSERT_TRUE(waitUntil([&] { return service.requestsTo("report_add").size() == 1; }))
        << service.diagnostics().toStdString();
    EXPECT_EQ(service.requestsTo("crash_log").size(), 1);
    EXPECT_TRUE(crashReporter.isEnabled());
    EXPECT_FALSE(crashReporter.hasPendingCrashReport());
}

TEST_F(LaunchedApp, ALaterStartBringsTheWindowBackWithItsFilesInTheList) {
    launch();
    delegate->window()->hide();
    const QString clip = TestMedia::video(320, 240, 1);
    delegate->applicationShouldHandleReopen(
        {TestMedia::copyNamed(clip, "handed-a.mov"), TestMedia::copyNamed(clip, "handed-b.mov")});
    EXPECT_TRUE(delegate->window()->isVisible());
    const auto* root = delegate->window()->findChild<UploadBaseViewController*>();
    ASSERT_NE(root, nullptr);
    EXPECT_TRUE(waitUntil([&] { return root->selectedFiles().size() == 2; }, 60000));
}
