#include "app/JobStatusPresenter.h"

#include "jobs/DataManager.h"
#include "jobs/NotificationNames.h"
#include "model/StatusTexts.h"
#include "ui/navigation/MainWindow.h"

using namespace NotificationNames;

JobStatusPresenter::JobStatusPresenter(MainWindow& window, DataManager& dataManager,
                                       NotificationCenter& center,
                                       const QDBusConnection& sessionBus, QObject* parent)
    : QObject(parent),
      window_(window),
      dataManager_(dataManager),
      center_(center),
      launcher_(sessionBus),
      notifier_(sessionBus) {
    center.addObserver(this, kNotificationDidChangeEncodedPercent, [this](const Notification& n) {
        if (dataManager_.isLocalEncode()) {
            showPercent(n.object.toDouble());
        }
    });
    center.addObserver(this, kNotificationDidChangeUploadedPercent, [this](const Notification& n) {
        if (!dataManager_.isLocalEncode()) {
            showPercent(n.object.toDouble());
        }
    });
    for (const QLatin1String end : {kNotificationDidFinishUploading, kNotificationDidFailUploading,
                                    kNotificationDidRanOutOfSpaceOnDisk}) {
        center.addObserver(this, end, [this](const Notification&) { jobEnded(); });
    }
    stillRunning_.setInterval(1000);
    connect(&stillRunning_, &QTimer::timeout, this, [this] {
        if (!dataManager_.isJobRunning()) {
            clear();
        }
    });
}

JobStatusPresenter::~JobStatusPresenter() { center_.removeObserver(this); }

void JobStatusPresenter::showPercent(double percent) {
    window_.setWindowTitle(StatusTexts::windowTitle(percent));
    launcher_.setProgress(percent / 100.0);
    stillRunning_.start();
}

void JobStatusPresenter::jobEnded() {
    clear();
    if (!window_.isActiveWindow()) {
        notifier_.notify(
            StatusTexts::jobEndedSummary(dataManager_.isLocalEncode()),
            StatusTexts::jobEndedBody(dataManager_.uploadedFilesCount(),
                                      static_cast<int>(dataManager_.failedFiles().size())));
    }
}

void JobStatusPresenter::clear() {
    stillRunning_.stop();
    window_.setWindowTitle(StatusTexts::windowTitle(std::nullopt));
    launcher_.setProgress(std::nullopt);
}
