#pragma once

#include <memory>

#include "model/Folder.h"
#include "model/Project.h"
#include "ui/metadata/TagsViewDelegate.h"
#include "ui/screens/UploadBaseViewController.h"

namespace Ui {
class ProjectUploadViewController;
}

class InputView;
class LoadingStatusView;
class QComboBox;
class QListWidget;
class TagsView;

// Uploads the listed files into a folder of one of the user's projects, with a description
// and tags. Every kind of file may go up; videos are encoded first unless set to "Do Not
// Encode", and may send their untouched source along.
//
// The projects load when the screen is made, a project's folders when it is chosen; while a
// list loads its popup waits, and a failed load offers to try again.
class ProjectUploadViewController : public UploadBaseViewController, public TagsViewDelegate {
    Q_OBJECT

public:
    explicit ProjectUploadViewController(
        AppDelegateInterface* appDelegate = AppDelegateInterface::applicationDelegate(),
        DataManager* dataManager = nullptr);
    ~ProjectUploadViewController() override;

    void uploadButtonDidTouch() override;
    void activateView() override;
    void addTitleBarButtons() override;
    void tagsViewDidChangeFrame() override;

    void loadProjectList();
    void selectProject(int index);

    QComboBox* projectPopup() const;
    QListWidget* folderList() const;
    LoadingStatusView* catalogueStatus() const;
    InputView* descriptionField() const;
    TagsView* tagsView() const;
    // The folder chosen in the list, if any.
    FolderPtr selectedFolder() const;

protected:
    void awakeFromNib() override;
    void signUpForNotifications() override;

private:
    enum class Waiting { Nothing, Projects, Folders };

    void didLoadProjects(const ProjectList& projects);
    void didLoadFolders(const FolderList& folders);
    void didFailLoading(Waiting what, const Notification& notification);
    void retryLoading();
    void setWaiting(Waiting what);
    void layoutColumn();

    std::unique_ptr<Ui::ProjectUploadViewController> ui_;
    ProjectList projects_;
    FolderList folders_;
    Waiting waiting_ = Waiting::Nothing;
    Waiting failed_ = Waiting::Nothing;
};
