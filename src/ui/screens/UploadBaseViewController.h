#pragma once

#include <QMenu>
#include <QPointer>
#include <QStringList>
#include <QUrl>
#include <functional>

#include "model/File.h"
#include "ui/files/DragAndDropDestinationViewDelegate.h"
#include "ui/files/FilesTableViewDelegate.h"
#include "ui/navigation/BaseViewController.h"
#include "ui/session/SignInSheet.h"

class ButtonWithImage;
class ColoredView;
class DragAndDropDestinationView;
class FilesTableView;
class ImageView;
class QLabel;
class RoundedButton;
struct Notification;
struct UploadChoice;

// What the screens that gather a batch of files share: the file list, the picking panel and
// drops, which files are taken without probing, waiting for the probes of a batch, and the one
// alert naming what was refused. A subclass sets up its layout in its constructor and hands the
// pieces over with setOutlets(); it narrows canAddFile() and starts its job.
//
// A batch begins with every "Select files" and every drop and ends when its last probe result
// is in (or at once when nothing needed probing): then its files join the list and its refusals
// are named. While a drop's batch is out, further drops are refused.
class UploadBaseViewController : public BaseViewController,
                                 public FilesTableViewDelegate,
                                 public DragAndDropDestinationViewDelegate {
    Q_OBJECT

public:
    // Makes the screen shown once a job starts; the application sets it.
    using ScreenFactory = std::function<BaseViewController*()>;

    explicit UploadBaseViewController(
        AppDelegateInterface* appDelegate = AppDelegateInterface::applicationDelegate(),
        DataManager* dataManager = nullptr);
    ~UploadBaseViewController() override;

    void setProgressScreenFactory(ScreenFactory factory) {
        progressScreenFactory_ = std::move(factory);
    }

    // Paths of files and folders taken as one batch, exactly as a drop of them would be: for
    // files given on the command line or by a second instance. False when refused because a
    // drop's batch is still out.
    bool addFilesAtPaths(const QStringList& paths);

    FileList selectedFiles() const;
    virtual bool canAddFile(const FilePtr& file) const;
    bool isFileSupported(const FilePtr& file) const;
    bool listContainsFileAtURL(const QUrl& url) const;
    void addFileWithUrl(const QUrl& url);
    void addFilesToTableView();
    void showFileTypeNotSupportedMessage();

    void selectFilesButtonDidTouch();
    void setSelectFilesButtonEnabled();

    void reloadTableView();
    void showPlaceholderForTableView(bool show);
    void clearFilesTableView();
    void didRemoveFile(const FilePtr& file) override;

    // Whether a drop would be taken now.
    bool dragAndDropEnabled() const { return dragAndDropEnabled_; }
    // Probes of the current batch still out.
    qsizetype waitingForDetailsCount() const { return filesWaitingForDetails_.size(); }

    FilesTableView* filesTableView() const { return outlets_.filesTableView; }
    ImageView* filesPlaceholder() const { return outlets_.filesPlaceholder; }
    DragAndDropDestinationView* dragAndDropDestinationView() const {
        return outlets_.dragAndDropDestinationView;
    }
    RoundedButton* selectFilesButton() const { return outlets_.selectFilesButton; }
    RoundedButton* uploadButton() const { return outlets_.uploadButton; }
    RoundedButton* addButton() const { return outlets_.addButton; }
    ButtonWithImage* localButton() const { return outlets_.localButton; }
    QLabel* statusLabel() const { return outlets_.statusLabel; }

    // Hooks of the upload screens; nothing here.
    virtual void uploadButtonDidTouch() {}
    virtual void mediaLibButtonDidTouch() {}
    virtual void projectButtonDidTouch() {}
    virtual void localButtonDidTouch() {}
    // The title strip's buttons of this screen: the sign-in button here.
    virtual void addTitleBarButtons();

    // The sign-in button at the strip's right end: "Sign in" opens the sign-in sheet; once
    // signed in it shows the user's name and offers "Sign out".
    void addUserButton() override;
    void userButtonDidTouch();
    SignInSheet* signInSheet() const { return signInSheet_; }
    QMenu* userMenu() const { return userMenu_; }
    ButtonWithImage* mediaLibButton() const { return outlets_.mediaLibButton; }
    ButtonWithImage* projectButton() const { return outlets_.projectButton; }

protected:
    struct Outlets {
        ColoredView* coloredView = nullptr;
        DragAndDropDestinationView* dragAndDropDestinationView = nullptr;
        FilesTableView* filesTableView = nullptr;
        // Drawn around the list; shown and hidden with it. May be null.
        QWidget* filesTableFrame = nullptr;
        ImageView* filesPlaceholder = nullptr;
        QLabel* statusLabel = nullptr;
        RoundedButton* addButton = nullptr;
        RoundedButton* uploadButton = nullptr;
        RoundedButton* selectFilesButton = nullptr;
        ButtonWithImage* mediaLibButton = nullptr;
        ButtonWithImage* projectButton = nullptr;
        ButtonWithImage* localButton = nullptr;
    };
    void setOutlets(const Outlets& outlets) { outlets_ = outlets; }
    // Every screen's layout names these pieces alike.
    template <class Layout>
    void setOutletsFrom(const Layout& ui) {
        setOutlets({.coloredView = ui.coloredView,
                    .dragAndDropDestinationView = ui.dragAndDropDestinationView,
                    .filesTableView = ui.filesTableView,
                    .filesTableFrame = ui.filesTableFrame,
                    .filesPlaceholder = ui.filesPlaceholder,
                    .statusLabel = ui.statusLabel,
                    .addButton = ui.addButton,
                    .uploadButton = ui.uploadButton,
                    .selectFilesButton = ui.selectFilesButton,
                    .mediaLibButton = ui.mediaLibButton,
                    .projectButton = ui.projectButton,
                    .localButton = ui.localButton});
    }

    void awakeFromNib() override;
    void signUpForNotifications() override;
    void initializeView();

    // The progress screen, pushed before the job starts; null when the application set none.
    BaseViewController* makeProgressScreen() const;
    // A job took the list: the batch still out is given up, its late probe results are
    // dropped, and drops are taken again.
    void abandonBatch();
    // Pushes the progress screen and uploads the listed files with the choice; says what is
    // missing instead when there are no files or no destination.
    void startUpload(const UploadChoice& choice);

private:
    void dragAndDropFiles(const QStringList& paths) override;
    void didFinishLoadingDetailsForFile(const Notification& notification);
    void startBatch();
    void scheduleStatusUpdate();
    void updateStatus();

    Outlets outlets_;
    ScreenFactory progressScreenFactory_;

    FileList filesToAdd_;
    FileList filesWaitingForDetails_;
    QStringList filesNotSupported_;
    // Probed for a batch that a job's start gave up; their results are dropped when they come.
    FileList abandonedFiles_;
    bool listMayContainVideo_ = false;
    bool dragAndDropEnabled_ = true;
    bool statusUpdatePending_ = false;
    QPointer<SignInSheet> signInSheet_;
    QPointer<QMenu> userMenu_;
};
