#include "app/AppDelegate.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSessionManager>
#include <QTimer>
#include <QUrl>
#include <csignal>

#include "app/JobStatusPresenter.h"
#include "app/RootScreen.h"
#include "jobs/DataManager.h"
#include "jobs/NotificationNames.h"
#include "platform/ApplicationInfo.h"
#include "platform/InterruptWatcher.h"
#include "platform/Log.h"
#include "platform/LogindPowerAssertion.h"
#include "platform/Paths.h"
#include "platform/SingleInstance.h"
#include "platform/SleepWatcher.h"
#include "platform/UserDefaultsManager.h"
#include "service/MakerSite.h"
#include "ui/navigation/NavigationViewController.h"
#include "ui/navigation/SheetFocus.h"
#include "ui/navigation/UpdateBar.h"
#include "ui/screens/UploadBaseViewController.h"

AppDelegate::Parts AppDelegate::Parts::application() {
    return {DataManager::sharedInstance(),
            NotificationCenter::defaultCenter(),
            LogindPowerAssertion::sharedInstance(),
            {UserDefaultsManager::sharedInstance().settings(), NotificationCenter::defaultCenter(),
             CrashReporter::sharedReporter(), CrashReportManager::sharedInstance(),
             PellCrashReporter::Options::defaults()},
            Paths::logFolder(),
            QDBusConnection::sessionBus(),
            &QCoreApplication::quit};
}

AppDelegate::AppDelegate(Parts parts, QObject* parent)
    : QObject(parent), parts_(std::move(parts)) {}

AppDelegate::~AppDelegate() { parts_.center.removeObserver(this); }

void AppDelegate::applicationDidFinishLaunching() {
    Log::setUp({.directory = parts_.logDirectory,
                .consoleLevel = Log::Level::Warning,
                .consoleEnabled = true});
    LOG_INFO("Orvale started");

    crashReportLauncher_ = std::make_unique<CrashReportLauncher>(parts_.crashReporting);
    crashReportLauncher_->start();

    parts_.center.addObserver(this, NotificationNames::kNotificationDidFinishLoggingOut,
                              [this](const Notification&) { didFinishLoggingOut(); });
    sleepWatcher_ = std::make_unique<SleepWatcher>();
    connect(sleepWatcher_.get(), &SleepWatcher::willSleep, this,
            [this] { receiveSleepNote(QStringLiteral("PrepareForSleep")); });
    interruptWatcher_ = std::make_unique<InterruptWatcher>(QList<int>{SIGTERM, SIGINT, SIGHUP});
    connect(interruptWatcher_.get(), &InterruptWatcher::interrupted, this, &AppDelegate::terminate);

    // The window's close button asks first; a desktop logout may be cancelled to ask.
    window()->installEventFilter(this);
    connect(qApp, &QGuiApplication::commitDataRequest, this, &AppDelegate::commitDataRequest);
    buildMenu();
    window()->updateBar()->observeNewVersions(parts_.center);
    jobStatus_ = std::make_unique<JobStatusPresenter>(*window(), parts_.dataManager, parts_.center,
                                                      parts_.sessionBus);
    startApp();
}

void AppDelegate::startApp() {
    rootScreen_ = makeRootScreen();
    navigationViewController()->setViewController(rootScreen_);
    window()->show();
    // Once, when the root screen is up: a newer release is told in the update bar.
    QTimer::singleShot(0, this, [this] { parts_.dataManager.checkForKestoUpdates(); });
}

void AppDelegate::buildMenu() {
    QMenuBar* bar = window()->menuBar();
    QMenu* file = bar->addMenu(QStringLiteral("&File"));
    QAction* quit =
        file->addAction(QStringLiteral("&Quit"), this, [this] { applicationShouldTerminate(); });
    quit->setShortcut(QKeySequence::Quit);
    quit->setShortcutContext(Qt::ApplicationShortcut);
    quit->setMenuRole(QAction::QuitRole);

    QMenu* helpMenu = bar->addMenu(QStringLiteral("&Help"));
    if (MakerSite::isConfigured()) {
        helpMenu->addAction(QStringLiteral("Orvale &Help"), this, &AppDelegate::help);
    }
    helpMenu->addAction(QStringLiteral("&About Orvale"), this, &AppDelegate::about)
        ->setMenuRole(QAction::AboutRole);
}

bool AppDelegate::applicationShouldTerminate() {
    LOG_VERBOSE("applicationShouldTerminate");
    if (applicationCanTerminate_) {
        LOG_INFO("Orvale terminated");
        terminate();
        return true;
    }
    if (quitConfirmation_ != nullptr) {
        quitConfirmation_->raise();  // already asked, not yet answered
        return false;
    }
    auto* alert = new QMessageBox(QMessageBox::Warning, QStringLiteral("Orvale"), kQuitQuestion,
                                  QMessageBox::NoButton, window());
    QPushButton* yes = alert->addButton(QStringLiteral("Yes"), QMessageBox::YesRole);
    alert->addButton(QStringLiteral("No"), QMessageBox::NoRole);
    alert->setDefaultButton(yes);
    alert->setWindowModality(Qt::WindowModal);
    alert->setAttribute(Qt::WA_DeleteOnClose);
    SheetFocus::returnAfter(alert);
    connect(alert, &QMessageBox::finished, this, [this, alert, yes] {
        quitConfirmation_ = nullptr;  // answered; the next request asks again
        alertDidEnd(alert->clickedButton() == yes ? kAlertFirstButtonReturn
                                                  : kAlertSecondButtonReturn);
    });
    quitConfirmation_ = alert;
    alert->open();
    return false;
}

void AppDelegate::alertDidEnd(int returnCode) {
    if (returnCode == kAlertFirstButtonReturn) {
        applicationCanTerminate_ = true;
        applicationShouldTerminate();
    }
}

void AppDelegate::terminate() {
    if (terminated_) {
        return;
    }
    applicationCanTerminate_ = true;
    applicationWillTerminate();
    window()->close();
    parts_.quit();
}

void AppDelegate::applicationWillTerminate() {
    if (terminated_) {
        return;
    }
    terminated_ = true;
    LOG_VERBOSE("applicationWillTerminate");
    parts_.dataManager.stopEncoding();
    parts_.dataManager.deleteEncodedFilesIfNecessary();
}

void AppDelegate::commitDataRequest(QSessionManager& manager) {
    if (applicationCanTerminate_) {
        return;
    }
    // The logout waits for no one: it is cancelled, and "Yes" quits Orvale on its own.
    manager.cancel();
    applicationShouldTerminate();
}

bool AppDelegate::eventFilter(QObject* watched, QEvent* event) {
    if (watched == window() && event->type() == QEvent::Close && !applicationCanTerminate_) {
        event->ignore();
        applicationShouldTerminate();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void AppDelegate::receiveSleepNote(const QString& name) {
    LOG_VERBOSE("receiveSleepNote: {}", name);
    quint32 assertion = 0;
    if (parts_.powerAssertion.create(QStringLiteral("Describe Activity Type"), assertion) != 0) {
        return;  // without the assertion the machine may sleep mid-way; nothing is stopped
    }
    parts_.dataManager.stopUploading();
    parts_.powerAssertion.release(assertion);
}

void AppDelegate::listenForReopen(SingleInstance& instance) {
    connect(&instance, &SingleInstance::activationRequested, this,
            &AppDelegate::applicationShouldHandleReopen);
}

void AppDelegate::applicationShouldHandleReopen(const QStringList& files) {
    LOG_VERBOSE("applicationShouldHandleReopen");
    window()->show();
    window()->setWindowState(window()->windowState() & ~Qt::WindowMinimized);
    window()->raise();
    window()->activateWindow();
    if (!files.isEmpty()) {
        addFilesToRootScreen(files);
    }
}

void AppDelegate::addFilesToRootScreen(const QStringList& paths) {
    // While a job runs the root screen takes no files; they would vanish without a word.
    if (!rootScreen_ || !rootScreen_->isScreenVisible() || !rootScreen_->addFilesAtPaths(paths)) {
        LOG_INFO("Files not taken while the window is busy: {}", paths.join(QStringLiteral(", ")));
    }
}

void AppDelegate::didFinishLoggingOut() {
    navigationViewController()->popToViewControllerWithIndex(0, true);
}

void AppDelegate::help() {
    const MakerSite site = MakerSite::current();
    if (site.hasHost()) {
        QDesktopServices::openUrl(QUrl(site.helpURL()));
    }
}

void AppDelegate::about() {
    auto* box =
        new QMessageBox(QMessageBox::NoIcon, QStringLiteral("About Orvale"),
                        QStringLiteral("Orvale %1").arg(ApplicationInfo::current().shortVersion),
                        QMessageBox::Ok, window());
    box->setInformativeText(
        QStringLiteral("Gets video files ready for a media-asset web service."));
    box->setWindowModality(Qt::WindowModal);
    box->setAttribute(Qt::WA_DeleteOnClose);
    SheetFocus::returnAfter(box);
    box->open();
}
