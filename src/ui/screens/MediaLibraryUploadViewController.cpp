#include "ui/screens/MediaLibraryUploadViewController.h"

#include <QComboBox>
#include <QLabel>

#include "jobs/DataManager.h"
#include "jobs/NotificationNames.h"
#include "jobs/UploadChoice.h"
#include "platform/NotificationCenter.h"
#include "ui/controls/ButtonWithImage.h"
#include "ui/controls/ColoredView.h"
#include "ui/controls/Fonts.h"
#include "ui/controls/ImageView.h"
#include "ui/controls/LoadingStatusView.h"
#include "ui/controls/RoundedButton.h"
#include "ui/controls/RoundedView.h"
#include "ui/files/DragAndDropDestinationView.h"
#include "ui/files/FilesTableView.h"
#include "ui/metadata/CreditsView.h"
#include "ui/metadata/TagsView.h"
#include "ui/screens/UploadScreenLayout.h"
#include "ui_MediaLibraryUploadViewController.h"

using namespace NotificationNames;

MediaLibraryUploadViewController::MediaLibraryUploadViewController(
    AppDelegateInterface* appDelegate, DataManager* dataManager)
    : UploadBaseViewController(appDelegate, dataManager),
      ui_(std::make_unique<Ui::MediaLibraryUploadViewController>()) {
    ui_->setupUi(this);
    setOutletsFrom(*ui_);
}

MediaLibraryUploadViewController::~MediaLibraryUploadViewController() = default;

void MediaLibraryUploadViewController::awakeFromNib() {
    UploadBaseViewController::awakeFromNib();
    UploadScreenLayout::setUp(
        *this, {ui_->heading, ui_->filesTableFrame, ui_->statusLabel, ui_->metadataScrollArea},
        {ui_->categoryTitle});
    ui_->tagsView->setDelegate(this);
    ui_->categoryPopup->setFont(Fonts::helveticaNeue(13));
    ui_->categoryPopup->setPlaceholderText(QStringLiteral("Choose a category"));
    connect(ui_->categoryPopup, &QComboBox::activated, this,
            &MediaLibraryUploadViewController::selectCategory);
    connect(ui_->catalogueStatus, &LoadingStatusView::retryRequested, this,
            &MediaLibraryUploadViewController::retryLoading);
    ui_->creditsView->setCredits(std::nullopt);
    layoutColumn();
    loadMediaLibraryCategories();
}

void MediaLibraryUploadViewController::signUpForNotifications() {
    UploadBaseViewController::signUpForNotifications();
    NotificationCenter& center = NotificationCenter::defaultCenter();
    center.addObserver(this, kNotificationDidFinishLoadingMediaLibraryCategories,
                       [this](const Notification& notification) {
                           didLoadCategories(notification.object.value<MediaLibraryCategoryList>());
                       });
    center.addObserver(this, kNotificationDidFailLoadingMediaLibraryCategories,
                       [this](const Notification& notification) {
                           didFailLoading(Waiting::Categories, notification);
                       });
    center.addObserver(this, kNotificationDidFinishLoadngCreditsForCategory,
                       [this](const Notification& notification) {
                           didLoadCredits(notification.object.value<CreditList>());
                       });
    center.addObserver(this, kNotificationDidFailLoadngCreditsForCategory,
                       [this](const Notification& notification) {
                           didFailLoading(Waiting::Credits, notification);
                       });
}

QComboBox* MediaLibraryUploadViewController::categoryPopup() const { return ui_->categoryPopup; }
LoadingStatusView* MediaLibraryUploadViewController::catalogueStatus() const {
    return ui_->catalogueStatus;
}
CreditsView* MediaLibraryUploadViewController::creditsView() const { return ui_->creditsView; }
TagsView* MediaLibraryUploadViewController::tagsView() const { return ui_->tagsView; }

void MediaLibraryUploadViewController::loadMediaLibraryCategories() {
    setWaiting(Waiting::Categories);
    ui_->catalogueStatus->showLoading(QStringLiteral("Loading categories..."));
    layoutColumn();
    dataManager().loadMediaLibraryCategories();
}

// Answers are taken only while asked for: one list loads at a time, so credit fields cannot
// belong to another category than the one shown.
void MediaLibraryUploadViewController::didLoadCategories(
    const MediaLibraryCategoryList& categories) {
    if (waiting_ != Waiting::Categories) {
        return;
    }
    setWaiting(Waiting::Nothing);
    categories_ = categories;
    UploadScreenLayout::fillPopup(*ui_->categoryPopup, categories_, *ui_->catalogueStatus,
                                  QStringLiteral("There are no categories to upload to."));
    layoutColumn();
}

void MediaLibraryUploadViewController::selectCategory(int index) {
    if (index < 0 || index >= categories_.size()) {
        return;
    }
    chosenCategory_.reset();
    ui_->creditsView->setCredits(std::nullopt);
    setWaiting(Waiting::Credits);
    ui_->catalogueStatus->showLoading(QStringLiteral("Loading credits..."));
    layoutColumn();
    dataManager().loadCreditsForCategory(categories_.at(index));
}

void MediaLibraryUploadViewController::didLoadCredits(const CreditList& credits) {
    if (waiting_ != Waiting::Credits) {
        return;
    }
    setWaiting(Waiting::Nothing);
    chosenCategory_ = categories_.value(ui_->categoryPopup->currentIndex());
    ui_->catalogueStatus->clear();
    ui_->creditsView->setCredits(credits);
    layoutColumn();
}

void MediaLibraryUploadViewController::didFailLoading(Waiting what,
                                                      const Notification& notification) {
    if (waiting_ != what) {
        return;
    }
    setWaiting(Waiting::Nothing);
    failed_ = what;
    ui_->catalogueStatus->showFailure(UploadScreenLayout::failureText(notification));
    layoutColumn();
}

void MediaLibraryUploadViewController::retryLoading() {
    if (failed_ == Waiting::Categories) {
        loadMediaLibraryCategories();
    } else {
        selectCategory(ui_->categoryPopup->currentIndex());
    }
}

void MediaLibraryUploadViewController::setWaiting(Waiting what) {
    waiting_ = what;
    ui_->categoryPopup->setEnabled(what == Waiting::Nothing);
}

// The status line takes room only while it shows; the credits grow with their fields and the
// tags follow them.
void MediaLibraryUploadViewController::layoutColumn() {
    UploadScreenLayout::stackColumn(*ui_->metadataContent,
                                    {ui_->categoryTitle, ui_->categoryPopup, ui_->catalogueStatus,
                                     ui_->creditsView, ui_->tagsView});
}

void MediaLibraryUploadViewController::uploadButtonDidTouch() {
    UploadChoice choice;
    choice.toMediaLibrary = true;
    if (chosenCategory_) {
        choice.categoryID = chosenCategory_->ID;
        choice.credits = ui_->creditsView->creditsWithValues();
    }
    choice.tags = ui_->tagsView->tags();
    startUpload(choice);
}

void MediaLibraryUploadViewController::activateView() {
    UploadBaseViewController::activateView();
    addTitleBarButtons();
    uploadButton()->setActionEnabled(true);
}

void MediaLibraryUploadViewController::addTitleBarButtons() {
    addBackButton();
    addUserButton();
}

void MediaLibraryUploadViewController::tagsViewDidChangeFrame() { layoutColumn(); }
