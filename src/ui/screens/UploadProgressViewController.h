#pragma once

#include <QPointer>
#include <QTimer>
#include <memory>

#include "jobs/TimeLeftEstimate.h"
#include "model/ErrorResponse.h"
#include "model/File.h"
#include "ui/navigation/BaseViewController.h"

class ColoredView;
class ImageView;
class QLabel;
class QMessageBox;
class QPropertyAnimation;
class RoundedButton;
class RoundedView;

namespace Ui {
class UploadProgressViewController;
}

// Follows the running job through the job manager's notifications: how much is encoded and,
// for uploads, how much is uploaded, as percentages and growing bars; the file at work and the
// time the batch still needs; problems as alerts. When the job is over it shows the results.
// Its one action is Stop, which asks first.
class UploadProgressViewController : public BaseViewController {
    Q_OBJECT

public:
    static constexpr int kBarAnimationMs = 500;
    static constexpr int kResultsDelayMs = 500;

    explicit UploadProgressViewController(
        AppDelegateInterface* appDelegate = AppDelegateInterface::applicationDelegate(),
        DataManager* dataManager = nullptr);
    ~UploadProgressViewController() override;

    double currentConvertPercent() const { return currentConvertPercent_; }
    double currentUploadPercent() const { return currentUploadPercent_; }
    void setCurrentConvertPercent(double percent);
    void setCurrentUploadPercent(double percent);
    void updateFrameForProgressView(QWidget* bar, double percent, bool animated);
    void showFilesUploadedScreen();
    void setUiForLocal();
    void setUiForMediaLibrary();
    void activateView() override;

    // Asks whether to stop; on yes the job manager stops the job, which then ends as usual.
    void stopButtonDidTouch();
    QMessageBox* stopQuestion() const { return stopQuestion_; }
    bool isBarAnimating(const QWidget* bar) const;

    ColoredView* coloredView() const;
    RoundedView* totalView() const;
    RoundedView* convertedProgressView() const;
    RoundedView* uploadedProgressView() const;
    QLabel* convertedTextField() const;
    QLabel* uploadedTextField() const;
    QLabel* uploadedBytesTextField() const;
    ImageView* convertedSquare() const;
    ImageView* uploadedSquare() const;
    QLabel* convertedLabel() const;
    QLabel* uploadedLabel() const;
    ImageView* uploadingImage() const;
    QLabel* uploadingText() const;
    QLabel* fileTextField() const;
    QLabel* timeLeftTextField() const;
    RoundedButton* stopButton() const;

protected:
    void awakeFromNib() override;
    void signUpForNotifications() override;

private:
    void changeConvertedPercent(const QVariant& object);
    void changeUploadedPercent(const QVariant& object);
    void changeUploadedBytes(const QVariant& object);
    void didStartEncodingFile(const QVariant& object);
    void didFinishUploading();
    void didFailUploading(const ErrorResponsePtr& error);
    void didRanOutOfSpaceOnDisk();
    void didOccureProblemWhileEncodingFile(const FilePtr& file);
    void showTimeLeft(double batchPercent);
    void jobIsOver();
    void stopJob();

    std::unique_ptr<Ui::UploadProgressViewController> ui_;
    double currentConvertPercent_ = 0;
    double currentUploadPercent_ = 0;
    bool isLocal_ = false;
    TimeLeftEstimate timeLeft_;
    QTimer resultsTimer_;
    QPointer<QPropertyAnimation> convertedAnimation_;
    QPointer<QPropertyAnimation> uploadedAnimation_;
    QPointer<QMessageBox> stopQuestion_;
};
