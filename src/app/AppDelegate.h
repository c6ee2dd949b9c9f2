#pragma once

#include <QDBusConnection>
#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>

#include "crash/CrashReportLauncher.h"
#include "ui/navigation/WindowAppDelegate.h"

class DataManager;
class InterruptWatcher;
class JobStatusPresenter;
class NotificationCenter;
class PowerAssertion;
class QSessionManager;
class SingleInstance;
class SleepWatcher;
class UploadBaseViewController;

// The application object's delegate: the launch, the main window with its root screen and
// menu, quitting only once the user has said so, the machine's sleep, later starts asking for
// the window, and crash reporting at start-up.
//
// Every quit request a person makes (the window's close button, Ctrl+Q, the menu, a desktop
// logout) is answered with a question in a sheet on the window; only "Yes" quits. A termination
// signal quits at once. However it quits, the job manager stops encoding and removes the
// unfinished encodes first.
class AppDelegate : public QObject, public WindowAppDelegate {
    Q_OBJECT

public:
    static constexpr int kAlertFirstButtonReturn = 1000;
    static constexpr int kAlertSecondButtonReturn = 1001;
    static inline const QString kQuitQuestion =
        QStringLiteral("Do you really want to exit Orvale?");

    struct Parts {
        DataManager& dataManager;
        NotificationCenter& center;
        PowerAssertion& powerAssertion;
        CrashReportLauncher::Parts crashReporting;
        QString logDirectory;  // the rolling log file's folder; empty for none
        QDBusConnection sessionBus;
        std::function<void()> quit;  // ends the event loop

        // The application's own: shared instances, the user's folders, the session bus.
        static Parts application();
    };

    explicit AppDelegate(Parts parts, QObject* parent = nullptr);
    ~AppDelegate() override;

    void applicationDidFinishLaunching();
    // Makes the root screen the navigator's only screen and shows the window; the update check
    // follows once it shows.
    void startApp();

    // True when the application may quit now; otherwise the question is on its way.
    bool applicationShouldTerminate();
    void alertDidEnd(int returnCode);
    // On the way out: stops encoding and removes unfinished encodes. Runs once.
    void applicationWillTerminate();
    // Quits without asking (termination signals).
    void terminate();

    void receiveSleepNote(const QString& name);
    // Another start of Orvale asked for the window, maybe with files.
    void applicationShouldHandleReopen(const QStringList& files);
    // Later starts reach this one through the given instance.
    void listenForReopen(SingleInstance& instance);
    void didFinishLoggingOut();
    // Opens the maker's help page; does nothing without a maker's site.
    void help();
    void about();

    // Files from the command line or from a later start, as one batch for the root screen.
    void addFilesToRootScreen(const QStringList& paths);

    bool applicationCanTerminate() const { return applicationCanTerminate_; }
    QMessageBox* quitConfirmation() const { return quitConfirmation_; }
    CrashReportLauncher* crashReportLauncher() const { return crashReportLauncher_.get(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildMenu();
    void commitDataRequest(QSessionManager& manager);

    Parts parts_;
    std::unique_ptr<CrashReportLauncher> crashReportLauncher_;
    std::unique_ptr<SleepWatcher> sleepWatcher_;
    std::unique_ptr<InterruptWatcher> interruptWatcher_;
    std::unique_ptr<JobStatusPresenter> jobStatus_;
    QPointer<QMessageBox> quitConfirmation_;
    QPointer<UploadBaseViewController> rootScreen_;
    bool applicationCanTerminate_ = false;
    bool terminated_ = false;
};
