#include "ui/screens/ProjectUploadViewController.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>

#include "jobs/DataManager.h"
#include "jobs/NotificationNames.h"
#include "jobs/UploadChoice.h"
#include "model/CatalogueTexts.h"
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
#include "ui/metadata/InputView.h"
#include "ui/metadata/TagsView.h"
#include "ui/screens/UploadScreenLayout.h"
#include "ui_ProjectUploadViewController.h"

using namespace NotificationNames;

ProjectUploadViewController::ProjectUploadViewController(AppDelegateInterface* appDelegate,
                                                         DataManager* dataManager)
    : UploadBaseViewController(appDelegate, dataManager),
      ui_(std::make_unique<Ui::ProjectUploadViewController>()) {
    ui_->setupUi(this);
    setOutletsFrom(*ui_);
}

ProjectUploadViewController::~ProjectUploadViewController() = default;

void ProjectUploadViewController::awakeFromNib() {
    UploadBaseViewController::awakeFromNib();
    UploadScreenLayout::setUp(
        *this, {ui_->heading, ui_->filesTableFrame, ui_->statusLabel, ui_->metadataScrollArea},
        {ui_->projectTitle, ui_->folderTitle, ui_->descriptionTitle});
    ui_->descriptionField->setPlaceholder(QStringLiteral("Optional"));
    ui_->tagsView->setDelegate(this);
    ui_->projectPopup->setPlaceholderText(QStringLiteral("Choose a project"));
    ui_->projectPopup->setFont(Fonts::helveticaNeue(13));
    ui_->folderList->setFont(Fonts::helveticaNeue(13));
    connect(ui_->projectPopup, &QComboBox::activated, this,
            &ProjectUploadViewController::selectProject);
    connect(ui_->catalogueStatus, &LoadingStatusView::retryRequested, this,
            &ProjectUploadViewController::retryLoading);
    tagsViewDidChangeFrame();
    loadProjectList();
}

void ProjectUploadViewController::signUpForNotifications() {
    UploadBaseViewController::signUpForNotifications();
    NotificationCenter& center = NotificationCenter::defaultCenter();
    center.addObserver(this, kNotificationDidFinishLoadingProjectList,
                       [this](const Notification& notification) {
                           didLoadProjects(notification.object.value<ProjectList>());
                       });
    center.addObserver(this, kNotificationDidFailLoadingProjectList,
                       [this](const Notification& notification) {
                           didFailLoading(Waiting::Projects, notification);
                       });
    center.addObserver(this, kNotificationDidFinishLoadingFoldersForProject,
                       [this](const Notification& notification) {
                           didLoadFolders(notification.object.value<FolderList>());
                       });
    center.addObserver(this, kNotificationDidFailLoadingFoldersForProject,
                       [this](const Notification& notification) {
                           didFailLoading(Waiting::Folders, notification);
                       });
}

QComboBox* ProjectUploadViewController::projectPopup() const { return ui_->projectPopup; }
QListWidget* ProjectUploadViewController::folderList() const { return ui_->folderList; }
LoadingStatusView* ProjectUploadViewController::catalogueStatus() const {
    return ui_->catalogueStatus;
}
InputView* ProjectUploadViewController::descriptionField() const { return ui_->descriptionField; }
TagsView* ProjectUploadViewController::tagsView() const { return ui_->tagsView; }

FolderPtr ProjectUploadViewController::selectedFolder() const {
    const int row = ui_->folderList->currentRow();
    return ui_->folderList->currentItem() != nullptr && row >= 0 && row < folders_.size()
               ? folders_.at(row)
               : nullptr;
}

void ProjectUploadViewController::loadProjectList() {
    setWaiting(Waiting::Projects);
    ui_->catalogueStatus->showLoading(QStringLiteral("Loading projects..."));
    layoutColumn();
    dataManager().loadProjectList();
}

// Answers are taken only while asked for: one list loads at a time, so an answer cannot
// belong to another project than the one shown.
void ProjectUploadViewController::didLoadProjects(const ProjectList& projects) {
    if (waiting_ != Waiting::Projects) {
        return;
    }
    setWaiting(Waiting::Nothing);
    projects_ = projects;
    UploadScreenLayout::fillPopup(*ui_->projectPopup, projects_, *ui_->catalogueStatus,
                                  QStringLiteral("There are no projects to upload to."));
    layoutColumn();
}

void ProjectUploadViewController::selectProject(int index) {
    if (index < 0 || index >= projects_.size()) {
        return;
    }
    folders_.clear();
    ui_->folderList->clear();
    setWaiting(Waiting::Folders);
    ui_->catalogueStatus->showLoading(QStringLiteral("Loading folders..."));
    layoutColumn();
    dataManager().loadFoldersForProject(projects_.at(index));
}

void ProjectUploadViewController::didLoadFolders(const FolderList& folders) {
    if (waiting_ != Waiting::Folders) {
        return;
    }
    setWaiting(Waiting::Nothing);
    folders_ = folders;
    for (const FolderPtr& folder : folders_) {
        auto* item = new QListWidgetItem(CatalogueTexts::folderRow(*folder), ui_->folderList);
        item->setToolTip(folder->name);
    }
    if (folders_.isEmpty()) {
        ui_->catalogueStatus->showNote(QStringLiteral("This project has no folders."));
    } else {
        ui_->catalogueStatus->clear();
    }
    layoutColumn();
}

void ProjectUploadViewController::didFailLoading(Waiting what, const Notification& notification) {
    if (waiting_ != what) {
        return;
    }
    setWaiting(Waiting::Nothing);
    ui_->catalogueStatus->showFailure(UploadScreenLayout::failureText(notification));
    failed_ = what;
    layoutColumn();
}

void ProjectUploadViewController::retryLoading() {
    if (failed_ == Waiting::Projects) {
        loadProjectList();
    } else {
        selectProject(ui_->projectPopup->currentIndex());
    }
}

void ProjectUploadViewController::setWaiting(Waiting what) {
    waiting_ = what;
    ui_->projectPopup->setEnabled(what == Waiting::Nothing);
    ui_->folderList->setEnabled(what == Waiting::Nothing);
}

void ProjectUploadViewController::uploadButtonDidTouch() {
    UploadChoice choice;
    if (const FolderPtr folder = selectedFolder()) {
        choice.folderID = folder->ID;
    }
    choice.description = ui_->descriptionField->stringValue();
    choice.tags = ui_->tagsView->tags();
    startUpload(choice);
}

void ProjectUploadViewController::activateView() {
    UploadBaseViewController::activateView();
    addTitleBarButtons();
    uploadButton()->setActionEnabled(true);
}

void ProjectUploadViewController::addTitleBarButtons() {
    addBackButton();
    addUserButton();
}

void ProjectUploadViewController::tagsViewDidChangeFrame() { layoutColumn(); }

// The status line takes room only while it shows; the tags grow downward.
void ProjectUploadViewController::layoutColumn() {
    UploadScreenLayout::stackColumn(
        *ui_->metadataContent,
        {ui_->projectTitle, ui_->projectPopup, ui_->folderTitle, ui_->folderList,
         ui_->catalogueStatus, ui_->descriptionTitle, ui_->descriptionField, ui_->tagsView});
}
