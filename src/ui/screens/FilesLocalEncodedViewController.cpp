#include "ui/screens/FilesLocalEncodedViewController.h"

#include <QDesktopServices>
#include <QScrollArea>
#include <QScrollBar>

#include "jobs/DataManager.h"
#include "model/HEX.h"
#include "model/ResultsLayout.h"
#include "platform/Log.h"
#include "ui/controls/Fonts.h"
#include "ui/controls/ViewGeometry.h"
#include "ui_FilesLocalEncodedViewController.h"

namespace {

void moveToY(QWidget* view, float y) {
    QRectF frame = ViewGeometry::frame(view);
    frame.moveTo(frame.x(), y);
    ViewGeometry::setFrame(view, frame);
}

void setHeight(QWidget* view, float height) {
    QRectF frame = ViewGeometry::frame(view);
    frame.setHeight(height);
    ViewGeometry::setFrame(view, frame);
}

float heightOf(const QWidget* view) { return static_cast<float>(view->height()); }

}  // namespace

FilesLocalEncodedViewController::FilesLocalEncodedViewController(AppDelegateInterface* appDelegate,
                                                                 DataManager* dataManager)
    : BaseViewController(appDelegate, dataManager),
      ui_(std::make_unique<Ui::FilesLocalEncodedViewController>()) {
    ui_->setupUi(this);
}

FilesLocalEncodedViewController::~FilesLocalEncodedViewController() = default;

void FilesLocalEncodedViewController::awakeFromNib() {
    BaseViewController::awakeFromNib();
    ui_->coloredView->setBackgroundColor(Qt::white);
    ui_->imageView->setImageName(QStringLiteral("illustration_files_done_big.png"));
    ui_->uploadCountLabel->setFont(Fonts::helveticaNeue(22));
    ui_->uploadCountLabel->setStyleSheet(QStringLiteral("color: #666666;"));
    ui_->uploadCountLabel->setAlignment(Qt::AlignCenter);
    ui_->notUploadedLabel->setFont(Fonts::helveticaNeue(14));
    ui_->notUploadedLabel->setStyleSheet(QStringLiteral("color: #999999;"));
    ui_->notUploadedLabel->setAlignment(Qt::AlignCenter);
    ui_->scrollView->setStyleSheet(QStringLiteral(
        "QScrollArea, QScrollArea > QWidget > QWidget { background: transparent; }"));

    ui_->homeButton->setType(4);
    ui_->homeButton->setTitleString(QStringLiteral("Back to home"));
    ui_->homeButton->setTitleColor(HEX::colorWithHexString(QStringLiteral("#666666")));
    ui_->accountButton->setType(1);
    ui_->accountButton->setTitleString(QStringLiteral("Show in Folder"));
    ui_->accountButton->setTitleColor(Qt::white);
    ui_->tryAgainButton->setIconName(QStringLiteral("button_retry.png"));
    ui_->tryAgainButton->setTitleColor(HEX::colorWithHexString(QStringLiteral("#00a9e8")));
    ui_->tryAgainButton->setTitleFont(Fonts::named(QStringLiteral("HelveticaNeue-Bold"), 14));
    ui_->tryAgainButton->setTitleString(QStringLiteral("Try Again"));
    // It has grown to fit its title; centred, its focus ring sits evenly around icon and title.
    ui_->tryAgainButton->move((ui_->componentsView->width() - ui_->tryAgainButton->width()) / 2,
                              ui_->tryAgainButton->y());
    connect(ui_->homeButton, &StyledButton::triggered, this,
            &FilesLocalEncodedViewController::homeButtonDidTouch);
    connect(ui_->accountButton, &StyledButton::triggered, this,
            &FilesLocalEncodedViewController::accountButtonDidTouch);
    connect(ui_->tryAgainButton, &StyledButton::triggered, this,
            &FilesLocalEncodedViewController::tryAgainButtonDidTouch);
    // Tab goes from the top down: Try Again, then the two buttons at the bottom.
    setTabOrder(ui_->tryAgainButton, ui_->homeButton);
    setTabOrder(ui_->homeButton, ui_->accountButton);

    showLogViewIfNeeded();
    ui_->uploadCountLabel->setText(QStringLiteral("%1 %2").arg(
        QString::number(dataManager().uploadedFilesCount()), ui_->uploadCountLabel->text()));
}

void FilesLocalEncodedViewController::showLogViewIfNeeded() {
    const qsizetype failed = dataManager().failedFiles().size();
    const ResultsLayout::Result layout = ResultsLayout::layout(
        {heightOf(ui_->homeButton), heightOf(ui_->accountButton), heightOf(ui_->tryAgainButton),
         heightOf(ui_->notUploadedLabel), heightOf(ui_->uploadCountLabel), heightOf(ui_->imageView),
         heightOf(ui_->coloredView)},
        failed);
    for (QWidget* failures : std::initializer_list<QWidget*>{ui_->scrollView, ui_->notUploadedLabel,
                                                             ui_->tryAgainButton}) {
        failures->setVisible(layout.showsFailures);
    }
    // The container first: its children's lower-left frames are taken within its height.
    ViewGeometry::setFrame(ui_->componentsView,
                           {0, layout.componentsY, static_cast<qreal>(ui_->componentsView->width()),
                            layout.componentsHeight});
    moveToY(ui_->homeButton, layout.buttonsY);
    moveToY(ui_->accountButton, layout.buttonsY);
    if (layout.showsFailures) {
        const bool scrolls = layout.listHeight > layout.scrollViewHeight;
        const int scrollBar =
            scrolls ? ui_->scrollView->verticalScrollBar()->sizeHint().width() : 0;
        ui_->logView->resize(ui_->scrollView->width() - scrollBar,
                             static_cast<int>(layout.listHeight));
        addLogRows();
        setHeight(ui_->scrollView, layout.scrollViewHeight);
        moveToY(ui_->tryAgainButton, layout.tryAgainButtonY);
        moveToY(ui_->scrollView, layout.scrollViewY);
        moveToY(ui_->notUploadedLabel, layout.notUploadedLabelY);
    }
    moveToY(ui_->uploadCountLabel, layout.uploadCountLabelY);
    moveToY(ui_->imageView, layout.imageViewY);
}

void FilesLocalEncodedViewController::addLogRows() {
    const FileList failed = dataManager().failedFiles();
    for (qsizetype i = 0; i < failed.size(); ++i) {
        auto* row = new QLabel(failed.at(i)->fileName(), ui_->logView);
        row->setTextFormat(Qt::PlainText);
        row->setFont(Fonts::helveticaNeue(14));
        row->setStyleSheet(QStringLiteral("color: #00a9e8; background: transparent;"));
        row->setAlignment(Qt::AlignCenter);
        ViewGeometry::setFrame(
            row, {0, ResultsLayout::rowY(i), static_cast<qreal>(ui_->logView->width()),
                  ResultsLayout::kRowTextHeight});
        row->show();
        logRows_.append(row);
    }
}

void FilesLocalEncodedViewController::homeButtonDidTouch() {
    ui_->homeButton->setActionEnabled(false);
    LOG_VERBOSE("GoBackHomeAfterUpload");
    popToViewControllerWithIndex(0, true);
    setScreenVisible(false);
}

void FilesLocalEncodedViewController::accountButtonDidTouch() {
    LOG_VERBOSE("OpenOutputFolderAfterLocalEncode");
    QDesktopServices::openUrl(dataManager().localEncodeOutputDirUrl());
}

void FilesLocalEncodedViewController::tryAgainButtonDidTouch() {
    ui_->tryAgainButton->setActionEnabled(false);
    LOG_VERBOSE("TryAgainToUpload");
    const QString problem = dataManager().retryFailedFiles();
    if (!problem.isEmpty()) {
        // The job did not start (its output folder cannot be written): this screen stays.
        showAlertWithMessage(problem);
        ui_->tryAgainButton->setActionEnabled(true);
        return;
    }
    popViewControllerAnimated(true);
}

void FilesLocalEncodedViewController::activateView() {
    BaseViewController::activateView();
    LOG_INFO("Results shown: {}", ui_->uploadCountLabel->text());
    removeViewsFromTitleBar();
}

ColoredView* FilesLocalEncodedViewController::coloredView() const { return ui_->coloredView; }
QWidget* FilesLocalEncodedViewController::componentsView() const { return ui_->componentsView; }
ImageView* FilesLocalEncodedViewController::imageView() const { return ui_->imageView; }
QLabel* FilesLocalEncodedViewController::uploadCountLabel() const { return ui_->uploadCountLabel; }
QLabel* FilesLocalEncodedViewController::notUploadedLabel() const { return ui_->notUploadedLabel; }
QScrollArea* FilesLocalEncodedViewController::scrollView() const { return ui_->scrollView; }
QWidget* FilesLocalEncodedViewController::logView() const { return ui_->logView; }
ButtonWithIcon* FilesLocalEncodedViewController::tryAgainButton() const {
    return ui_->tryAgainButton;
}
RoundedButton* FilesLocalEncodedViewController::homeButton() const { return ui_->homeButton; }
RoundedButton* FilesLocalEncodedViewController::accountButton() const { return ui_->accountButton; }
