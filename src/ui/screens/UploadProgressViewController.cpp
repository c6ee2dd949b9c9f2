#include "ui/screens/UploadProgressViewController.h"

#include <QMessageBox>
#include <QPropertyAnimation>
#include <QShortcut>
#include <cmath>

#include "jobs/DataManager.h"
#include "jobs/NotificationNames.h"
#include "model/BatchProgressTexts.h"
#include "model/ProgressBarRules.h"
#include "platform/Log.h"
#include "platform/NotificationCenter.h"
#include "ui/controls/Fonts.h"
#include "ui/controls/ViewGeometry.h"
#include "ui/navigation/SheetFocus.h"
#include "ui/screens/FilesLocalEncodedViewController.h"
#include "ui_UploadProgressViewController.h"

using namespace NotificationNames;

namespace {

void styleLabel(QLabel* label, const QFont& font, const char* color,
                Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter) {
    label->setFont(font);
    label->setStyleSheet(QStringLiteral("color: %1;").arg(QLatin1String(color)));
    label->setAlignment(alignment);
}

bool isNumber(const QVariant& object) {
    switch (object.typeId()) {
        case QMetaType::Double:
        case QMetaType::Float:
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
            return true;
        default:
            return false;
    }
}

}  // namespace

UploadProgressViewController::UploadProgressViewController(AppDelegateInterface* appDelegate,
                                                           DataManager* dataManager)
    : BaseViewController(appDelegate, dataManager),
      ui_(std::make_unique<Ui::UploadProgressViewController>()) {
    ui_->setupUi(this);
    resultsTimer_.setSingleShot(true);
    resultsTimer_.setInterval(kResultsDelayMs);
    connect(&resultsTimer_, &QTimer::timeout, this,
            &UploadProgressViewController::showFilesUploadedScreen);
}

UploadProgressViewController::~UploadProgressViewController() = default;

void UploadProgressViewController::awakeFromNib() {
    BaseViewController::awakeFromNib();
    ui_->coloredView->setBackgroundColor(Qt::white);
    ui_->totalView->setType(16);
    ui_->convertedProgressView->setType(18);
    ui_->uploadedProgressView->setType(17);
    ui_->uploadingImage->setImageName(QStringLiteral("illustration_upload_big.png"));
    styleLabel(ui_->uploadingText, Fonts::helveticaNeue(22), "#666666", Qt::AlignCenter);
    ui_->convertedSquare->setImageName(QStringLiteral("progress_key_converted.png"));
    ui_->uploadedSquare->setImageName(QStringLiteral("progress_key_uploaded.png"));
    for (QLabel* percent : {ui_->convertedTextField, ui_->uploadedTextField}) {
        styleLabel(percent, Fonts::helveticaNeueBold(18), "#333333");
    }
    for (QLabel* caption : {ui_->convertedLabel, ui_->uploadedLabel}) {
        styleLabel(caption, Fonts::helveticaNeue(13), "#999999", Qt::AlignCenter);
    }
    styleLabel(ui_->uploadedBytesTextField, Fonts::helveticaNeue(12), "#999999", Qt::AlignCenter);
    styleLabel(ui_->fileTextField, Fonts::helveticaNeue(13), "#666666", Qt::AlignCenter);
    styleLabel(ui_->timeLeftTextField, Fonts::helveticaNeue(13), "#999999", Qt::AlignCenter);
    ui_->fileTextField->setTextFormat(Qt::PlainText);
    ui_->stopButton->setType(3);
    ui_->stopButton->setTitleString(QStringLiteral("Stop"));
    ui_->stopButton->setTitleColor(QColor(0x66, 0x66, 0x66));
    connect(ui_->stopButton, &StyledButton::triggered, this,
            &UploadProgressViewController::stopButtonDidTouch);
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(escape, &QShortcut::activated, this, [this] {
        if (isScreenVisible() && ui_->stopButton->isVisible()) {
            stopButtonDidTouch();
        }
    });
}

void UploadProgressViewController::signUpForNotifications() {
    NotificationCenter& center = NotificationCenter::defaultCenter();
    center.addObserver(this, kNotificationDidChangeEncodedPercent,
                       [this](const Notification& n) { changeConvertedPercent(n.object); });
    center.addObserver(this, kNotificationDidChangeUploadedPercent,
                       [this](const Notification& n) { changeUploadedPercent(n.object); });
    center.addObserver(this, kNotificationDidChangeUploadedBytes,
                       [this](const Notification& n) { changeUploadedBytes(n.object); });
    center.addObserver(this, kNotificationDidStartEncodingFile,
                       [this](const Notification& n) { didStartEncodingFile(n.object); });
    center.addObserver(this, kNotificationDidFinishUploading,
                       [this](const Notification&) { didFinishUploading(); });
    center.addObserver(this, kNotificationDidFailUploading, [this](const Notification& n) {
        didFailUploading(n.object.value<ErrorResponsePtr>());
    });
    center.addObserver(this, kNotificationDidRanOutOfSpaceOnDisk,
                       [this](const Notification&) { didRanOutOfSpaceOnDisk(); });
    center.addObserver(this, kNotificationDidOccureProblemWhileEncoding,
                       [this](const Notification& n) {
                           didOccureProblemWhileEncodingFile(n.object.value<FilePtr>());
                       });
    center.addObserver(this, kNotificationIsMediaLibraryUpload,
                       [this](const Notification&) { setUiForMediaLibrary(); });
    center.addObserver(this, kNotificationIsLocalEncode,
                       [this](const Notification&) { setUiForLocal(); });
}

void UploadProgressViewController::updateFrameForProgressView(QWidget* bar, double percent,
                                                              bool animated) {
    QRect target = bar->geometry();
    target.setWidth(static_cast<int>(
        std::lround(ProgressBarRules::barWidth(ui_->totalView->width(), percent))));
    QPointer<QPropertyAnimation>& running =
        bar == ui_->convertedProgressView ? convertedAnimation_ : uploadedAnimation_;
    if (running != nullptr) {
        running->stop();  // the new change starts where the bar is now; it deletes itself
    }
    if (!animated) {
        bar->setGeometry(target);
        return;
    }
    auto* animation = new QPropertyAnimation(bar, "geometry", this);
    animation->setDuration(kBarAnimationMs);
    animation->setEndValue(target);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
    running = animation;
}

bool UploadProgressViewController::isBarAnimating(const QWidget* bar) const {
    const QPointer<QPropertyAnimation>& running =
        bar == ui_->convertedProgressView ? convertedAnimation_ : uploadedAnimation_;
    return running != nullptr && running->state() == QAbstractAnimation::Running;
}

void UploadProgressViewController::setCurrentConvertPercent(double percent) {
    ui_->convertedTextField->setText(ProgressBarRules::percentText(percent));
    const auto bar = ProgressBarRules::convertBar(percent, currentConvertPercent_);
    updateFrameForProgressView(ui_->convertedProgressView, bar.percent, bar.animated);
    currentConvertPercent_ = percent;
}

void UploadProgressViewController::setCurrentUploadPercent(double percent) {
    const auto bar = ProgressBarRules::uploadBar(percent, currentUploadPercent_);
    updateFrameForProgressView(ui_->uploadedProgressView, bar.percent, bar.animated);
    if (bar.showsText) {
        ui_->uploadedTextField->setText(ProgressBarRules::percentText(percent));
    }
    currentUploadPercent_ = percent;
}

void UploadProgressViewController::changeConvertedPercent(const QVariant& object) {
    if (!isNumber(object)) {
        return;
    }
    setCurrentConvertPercent(object.toDouble());
    if (isLocal_) {
        showTimeLeft(object.toDouble());
    }
}

void UploadProgressViewController::changeUploadedPercent(const QVariant& object) {
    if (!isNumber(object)) {
        return;
    }
    setCurrentUploadPercent(object.toDouble());
    if (!isLocal_) {
        showTimeLeft(object.toDouble());
    }
}

void UploadProgressViewController::changeUploadedBytes(const QVariant& object) {
    if (object.typeId() == QMetaType::QString) {
        ui_->uploadedBytesTextField->setText(object.toString());
    }
}

void UploadProgressViewController::didStartEncodingFile(const QVariant& object) {
    const QVariantMap file = object.toMap();
    ui_->fileTextField->setText(BatchProgressTexts::fileLine(
        file.value(QStringLiteral("fileName")).toString(),
        file.value(QStringLiteral("number")).toInt(), file.value(QStringLiteral("count")).toInt()));
}

void UploadProgressViewController::showTimeLeft(double batchPercent) {
    timeLeft_.addPercent(batchPercent);
    ui_->timeLeftTextField->setText(BatchProgressTexts::timeLeft(timeLeft_.secondsLeft()));
}

void UploadProgressViewController::didFinishUploading() {
    ui_->uploadedTextField->setText(ProgressBarRules::percentText(currentUploadPercent_));
    updateFrameForProgressView(ui_->uploadedProgressView, currentUploadPercent_, true);
    jobIsOver();
    resultsTimer_.start();
}

void UploadProgressViewController::didFailUploading(const ErrorResponsePtr& error) {
    jobIsOver();
    showAlertWithMessage(error ? error->message : QString(), [this] { showFilesUploadedScreen(); });
}

void UploadProgressViewController::didRanOutOfSpaceOnDisk() {
    jobIsOver();
    showAlertWithMessage(QStringLiteral("No space left on device. Upload will be aborted."),
                         [this] { showFilesUploadedScreen(); });
}

void UploadProgressViewController::didOccureProblemWhileEncodingFile(const FilePtr& file) {
    const QString name = file ? file->fileName() : QString();
    showAlertWithMessage(
        QStringLiteral(
            "Ooops! Something went wrong while encoding video: %1. Video will be skipped.")
            .arg(name),
        [] {});
}

void UploadProgressViewController::jobIsOver() {
    if (stopQuestion_ != nullptr) {
        stopQuestion_->done(QMessageBox::No);
    }
    ui_->stopButton->hide();
}

void UploadProgressViewController::showFilesUploadedScreen() {
    resultsTimer_.stop();
    endAlert();
    // What the next job shows starts from nothing.
    timeLeft_.reset();
    ui_->fileTextField->clear();
    ui_->timeLeftTextField->clear();
    pushViewController(
        BaseViewController::create<FilesLocalEncodedViewController>(appDelegate(), &dataManager()),
        true);
    setScreenVisible(false);
}

void UploadProgressViewController::setUiForLocal() {
    isLocal_ = true;
    ui_->uploadingImage->setImageName(QStringLiteral("illustration_desktop_big.png"));
    ui_->uploadingText->setText(QStringLiteral("Encoding your files"));
    ui_->uploadingText->setAlignment(Qt::AlignCenter);
    for (QWidget* upload :
         std::initializer_list<QWidget*>{ui_->uploadedSquare, ui_->uploadedTextField,
                                         ui_->uploadedLabel, ui_->uploadedBytesTextField}) {
        upload->hide();
    }
    ViewGeometry::setFrame(ui_->convertedSquare, {410, 275, 30, 30});
    ViewGeometry::setFrame(ui_->convertedTextField, {448, 279, 60, 22});
    ViewGeometry::setFrame(ui_->convertedLabel, {407, 248, 78, 20});
}

void UploadProgressViewController::setUiForMediaLibrary() {
    ui_->uploadingImage->setImageName(QStringLiteral("illustration_media_library2_big.png"));
}

void UploadProgressViewController::activateView() {
    BaseViewController::activateView();
    removeViewsFromTitleBar();
    setCurrentConvertPercent(0);
    setCurrentUploadPercent(0);
    ui_->stopButton->setActionEnabled(true);
    ui_->stopButton->show();
}

void UploadProgressViewController::stopButtonDidTouch() {
    if (stopQuestion_ != nullptr || !ui_->stopButton->isActionEnabled()) {
        return;
    }
    const QString question = isLocal_
                                 ? QStringLiteral(
                                       "Stop encoding? The file being encoded now is discarded; "
                                       "finished files are kept.")
                                 : QStringLiteral(
                                       "Stop uploading? The files not uploaded yet are listed as "
                                       "failed; uploaded files are kept.");
    auto* box = new QMessageBox(QMessageBox::Question, QCoreApplication::applicationName(),
                                question, QMessageBox::Yes | QMessageBox::No, window());
    box->setDefaultButton(QMessageBox::No);
    box->setEscapeButton(QMessageBox::No);
    box->setWindowModality(Qt::WindowModal);
    connect(box, &QDialog::finished, box, &QObject::deleteLater);
    connect(box, &QDialog::finished, this, [this](int answer) {
        if (answer == QMessageBox::Yes) {
            stopJob();
        }
    });
    SheetFocus::returnAfter(box);
    stopQuestion_ = box;
    box->open();
}

void UploadProgressViewController::stopJob() {
    if (!dataManager().isJobRunning()) {
        return;  // it ended while the question was open
    }
    LOG_VERBOSE("StopJobFromProgress");
    ui_->stopButton->setActionEnabled(false);
    ui_->fileTextField->setText(QStringLiteral("Stopping\u2026"));
    ui_->timeLeftTextField->clear();
    dataManager().stopJob();
}

ColoredView* UploadProgressViewController::coloredView() const { return ui_->coloredView; }
RoundedView* UploadProgressViewController::totalView() const { return ui_->totalView; }
RoundedView* UploadProgressViewController::convertedProgressView() const {
    return ui_->convertedProgressView;
}
RoundedView* UploadProgressViewController::uploadedProgressView() const {
    return ui_->uploadedProgressView;
}
QLabel* UploadProgressViewController::convertedTextField() const { return ui_->convertedTextField; }
QLabel* UploadProgressViewController::uploadedTextField() const { return ui_->uploadedTextField; }
QLabel* UploadProgressViewController::uploadedBytesTextField() const {
    return ui_->uploadedBytesTextField;
}
ImageView* UploadProgressViewController::convertedSquare() const { return ui_->convertedSquare; }
ImageView* UploadProgressViewController::uploadedSquare() const { return ui_->uploadedSquare; }
QLabel* UploadProgressViewController::convertedLabel() const { return ui_->convertedLabel; }
QLabel* UploadProgressViewController::uploadedLabel() const { return ui_->uploadedLabel; }
ImageView* UploadProgressViewController::uploadingImage() const { return ui_->uploadingImage; }
QLabel* UploadProgressViewController::uploadingText() const { return ui_->uploadingText; }
QLabel* UploadProgressViewController::fileTextField() const { return ui_->fileTextField; }
QLabel* UploadProgressViewController::timeLeftTextField() const { return ui_->timeLeftTextField; }
RoundedButton* UploadProgressViewController::stopButton() const { return ui_->stopButton; }
