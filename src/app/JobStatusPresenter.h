#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QTimer>
#include <optional>

#include "platform/DesktopNotifier.h"
#include "platform/LauncherProgress.h"

class DataManager;
class MainWindow;
class NotificationCenter;

// A running job as the desktop sees it: its overall percentage in the window's title and on the
// launcher icon, and, when it ends while the window is not the active one, a desktop
// notification with the number of files completed and failed.
class JobStatusPresenter : public QObject {
    Q_OBJECT

public:
    JobStatusPresenter(MainWindow& window, DataManager& dataManager, NotificationCenter& center,
                       const QDBusConnection& sessionBus, QObject* parent = nullptr);
    ~JobStatusPresenter() override;

private:
    void showPercent(double percent);
    void jobEnded();
    void clear();

    MainWindow& window_;
    DataManager& dataManager_;
    NotificationCenter& center_;
    LauncherProgress launcher_;
    DesktopNotifier notifier_;
    // A stopped job says nothing more; while a percentage shows, this looks whether it still runs.
    QTimer stillRunning_;
};
