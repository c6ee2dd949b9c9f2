#include "ui/screens/UploadBaseViewController.h"

#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QShortcut>
#include <QTimer>
#include <algorithm>

#include "jobs/DataManager.h"
#include "jobs/FileSelection.h"
#include "jobs/NotificationNames.h"
#include "jobs/UploadChoice.h"
#include "model/FileListTexts.h"
#include "model/HEX.h"
#include "model/SourceButtonStates.h"
#include "model/TitleBarLayout.h"
#include "platform/Log.h"
#include "platform/NotificationCenter.h"
#include "ui/controls/ButtonWithImage.h"
#include "ui/controls/ButtonWithIcon.h"
#include "ui/controls/ColoredView.h"
#include "ui/controls/Fonts.h"
#include "ui/controls/ImageView.h"
#include "ui/controls/RoundedButton.h"
#include "ui/controls/ViewGeometry.h"
#include "ui/files/DragAndDropDestinationView.h"
#include "ui/files/FilesTableView.h"
#include "ui/navigation/SheetFocus.h"
#include "ui/session/SignInSheet.h"

namespace {

// Long enough that the click which closed the panel cannot open it again.
constexpr int kSelectFilesReenableDelayMs = 200;

// Where the next open panel starts: where the user last picked from.
QString& lastPickedFolder() {
    static QString folder = QDir::homePath();
    return folder;
}

}  // namespace

UploadBaseViewController::UploadBaseViewController(AppDelegateInterface* appDelegate,
                                                   DataManager* dataManager)
    : BaseViewController(appDelegate, dataManager) {}

UploadBaseViewController::~UploadBaseViewController() = default;

void UploadBaseViewController::awakeFromNib() {
    BaseViewController::awakeFromNib();
    initializeView();
}

void UploadBaseViewController::signUpForNotifications() {
    NotificationCenter& center = NotificationCenter::defaultCenter();
    center.addObserver(
        this, NotificationNames::kNotificationDidFinishLoadingDetailsForFile,
        [this](const Notification& notification) { didFinishLoadingDetailsForFile(notification); });
    // The button in the strip is this screen's while it is in front.
    for (const QLatin1String name : {NotificationNames::kNotificationDidFinishLoggingIn,
                                     NotificationNames::kNotificationDidFinishLoggingOut}) {
        center.addObserver(this, name, [this](const Notification&) {
            if (isScreenVisible() && userButton_ != nullptr) {
                addUserButton();
            }
        });
    }
}

void UploadBaseViewController::addTitleBarButtons() { addUserButton(); }

void UploadBaseViewController::addUserButton() {
    removeUserButton();
    hasUserButton_ = true;
    if (titleBarView() == nullptr) {
        return;
    }
    const UserPtr& user = dataManager().loggedinUser();
    auto* button = new ButtonWithIcon(titleBarView());
    button->setIconName(QStringLiteral("icon_user.png"));
    button->setHighlightedIconName(QStringLiteral("icon_user_selected.png"));
    button->setTitleColor(HEX::colorWithHexString(QStringLiteral("#999999")));
    button->setTitleFont(Fonts::helveticaNeueBold(12));
    button->resize(0, 26);
    button->setTitleString(SourceButtonStates::userButtonTitle(user ? user->username : QString()));
    button->setAccessibleDescription(user ? QStringLiteral("Signed in; opens Sign out")
                                          : QStringLiteral("Opens the sign-in sheet"));
    ViewGeometry::setFrame(button, TitleBarLayout::userButtonFrame(titleBarView()->size(),
                                                                   button->width()));
    connect(button, &ButtonWithIcon::triggered, this,
            &UploadBaseViewController::userButtonDidTouch);
    userButton_ = button;
    addSubviewToTitleBar(button);
}

void UploadBaseViewController::userButtonDidTouch() {
    if (dataManager().loggedinUser()) {
        delete userMenu_;
        userMenu_ = new QMenu(this);
        userMenu_->setAttribute(Qt::WA_DeleteOnClose);
        userMenu_->addAction(QStringLiteral("Sign out"), this, [this] { dataManager().logout(); });
        userMenu_->popup(userButton_ != nullptr
                             ? userButton_->mapToGlobal(QPoint(0, userButton_->height()))
                             : QCursor::pos());
        return;
    }
    // A closed sheet is on its way out; a new one shows what is remembered now.
    if (signInSheet_ == nullptr || !signInSheet_->isVisible()) {
        signInSheet_ = new SignInSheet(dataManager(), window());
        signInSheet_->setAttribute(Qt::WA_DeleteOnClose);
        SheetFocus::returnAfter(signInSheet_);
    }
    signInSheet_->open();
    signInSheet_->raise();
}

void UploadBaseViewController::initializeView() {
    outlets_.coloredView->setBackgroundColor(Qt::white);
    outlets_.addButton->setType(0);
    outlets_.addButton->setTitleString(QStringLiteral("Add"));
    outlets_.uploadButton->setType(2);
    outlets_.uploadButton->setTitleString(QStringLiteral("Upload files"));
    outlets_.selectFilesButton->setType(3);
    outlets_.selectFilesButton->setTitleColor(HEX::colorWithHexString(QStringLiteral("#666666")));
    outlets_.selectFilesButton->setTitleString(QStringLiteral("Select files"));

    outlets_.filesTableView->setComponentDelegate(this);
    outlets_.dragAndDropDestinationView->setDelegate(this);
    outlets_.dragAndDropDestinationView->acceptDragAndDrop();
    outlets_.filesPlaceholder->setImageName(QStringLiteral("placeholder_files.png"));
    showPlaceholderForTableView(true);
    dragAndDropEnabled_ = true;

    connect(outlets_.selectFilesButton, &RoundedButton::triggered, this,
            &UploadBaseViewController::selectFilesButtonDidTouch);
    connect(outlets_.uploadButton, &RoundedButton::triggered, this,
            &UploadBaseViewController::uploadButtonDidTouch);
    connect(outlets_.mediaLibButton, &ButtonWithImage::triggered, this,
            &UploadBaseViewController::mediaLibButtonDidTouch);
    connect(outlets_.projectButton, &ButtonWithImage::triggered, this,
            &UploadBaseViewController::projectButtonDidTouch);
    connect(outlets_.localButton, &ButtonWithImage::triggered, this,
            &UploadBaseViewController::localButtonDidTouch);
    connect(outlets_.filesTableView, &FilesTableView::filesChanged, this,
            &UploadBaseViewController::scheduleStatusUpdate);

    auto* open = new QShortcut(QKeySequence::Open, this);
    connect(open, &QShortcut::activated, this, [this] {
        if (isScreenVisible()) {
            selectFilesButtonDidTouch();
        }
    });
    updateStatus();
}

FileList UploadBaseViewController::selectedFiles() const {
    return outlets_.filesTableView->files();
}

bool UploadBaseViewController::canAddFile(const FilePtr&) const { return true; }

bool UploadBaseViewController::isFileSupported(const FilePtr& file) const {
    return FileSelection::isSupportedFileType(file->url().path());
}

bool UploadBaseViewController::listContainsFileAtURL(const QUrl& url) const {
    const FileList& files = outlets_.filesTableView->files();
    return std::any_of(files.cbegin(), files.cend(),
                       [&url](const FilePtr& file) { return file->url() == url; });
}

void UploadBaseViewController::startBatch() {
    filesToAdd_.clear();
    filesWaitingForDetails_.clear();
    filesNotSupported_.clear();
    listMayContainVideo_ = false;
}

void UploadBaseViewController::addFileWithUrl(const QUrl& url) {
    if (listContainsFileAtURL(url)) {
        return;
    }
    auto file = std::make_shared<File>(url);
    if (!isFileSupported(file)) {
        filesWaitingForDetails_.append(file);
        dataManager().addVideoDetailsToFileIfNeeded(file);
        listMayContainVideo_ = true;
    } else if (canAddFile(file)) {
        filesToAdd_.append(file);
    } else {
        filesNotSupported_.append(file->fileName().toLower());
    }
    scheduleStatusUpdate();
}

void UploadBaseViewController::didFinishLoadingDetailsForFile(const Notification& notification) {
    const auto file = notification.object.value<FilePtr>();
    if (!file || abandonedFiles_.removeOne(file) || !isScreenVisible()) {
        return;
    }
    filesWaitingForDetails_.removeOne(file);
    if (!file->isVideo && !canAddFile(file)) {
        filesNotSupported_.append(file->fileName().toLower());
    } else {
        filesToAdd_.append(file);
    }
    scheduleStatusUpdate();
    if (filesWaitingForDetails_.isEmpty()) {
        addFilesToTableView();
    }
}

// Files are moved, not copied: a probe result that arrives after its batch ended makes a batch
// of its own and must not bring back what was already taken or named.
void UploadBaseViewController::addFilesToTableView() {
    const int rowsBefore = outlets_.filesTableView->numberOfRows();
    for (const FilePtr& file : std::as_const(filesToAdd_)) {
        // Overlapping batches may both hold a file that was picked twice.
        if (!listContainsFileAtURL(file->url())) {
            outlets_.filesTableView->addFile(file);
        }
    }
    if (!filesToAdd_.isEmpty()) {
        const int rows = outlets_.filesTableView->numberOfRows();
        LOG_INFO("{} file(s) joined the list, {} in all", rows - rowsBefore, rows);
        showPlaceholderForTableView(outlets_.filesTableView->numberOfRows() == 0);
        outlets_.filesTableView->setFocus(Qt::OtherFocusReason);
    }
    filesToAdd_.clear();
    if (!filesNotSupported_.isEmpty()) {
        showFileTypeNotSupportedMessage();
        filesNotSupported_.clear();
    }
    dragAndDropEnabled_ = true;
    scheduleStatusUpdate();
}

void UploadBaseViewController::showFileTypeNotSupportedMessage() {
    const QString message = FileSelection::notSupportedMessage(filesNotSupported_);
    LOG_INFO("{}", message);
    showAlertWithMessage(message);
}

void UploadBaseViewController::selectFilesButtonDidTouch() {
    if (!outlets_.selectFilesButton->isActionEnabled()) {
        return;
    }
    outlets_.selectFilesButton->setActionEnabled(false);
    startBatch();

    QFileDialog panel(window(), QStringLiteral("Select files"), lastPickedFolder());
    panel.setFileMode(QFileDialog::ExistingFiles);
    panel.setAcceptMode(QFileDialog::AcceptOpen);
    SheetFocus::returnAfter(&panel);
    const bool chosen = panel.exec() == QDialog::Accepted;
    QTimer::singleShot(kSelectFilesReenableDelayMs, this,
                       &UploadBaseViewController::setSelectFilesButtonEnabled);
    if (!chosen) {
        return;
    }
    lastPickedFolder() = panel.directory().absolutePath();
    for (const QUrl& url : panel.selectedUrls()) {
        addFileWithUrl(url);
    }
    if (filesWaitingForDetails_.isEmpty() && !listMayContainVideo_) {
        addFilesToTableView();
    }
}

void UploadBaseViewController::setSelectFilesButtonEnabled() {
    outlets_.selectFilesButton->setActionEnabled(true);
}

void UploadBaseViewController::dragAndDropFiles(const QStringList& paths) {
    addFilesAtPaths(paths);
}

bool UploadBaseViewController::addFilesAtPaths(const QStringList& paths) {
    if (!dragAndDropEnabled_) {
        LOG_VERBOSE("Refused {} paths: the files dropped before are still being read",
                    paths.size());
        return false;
    }
    dragAndDropEnabled_ = false;
    startBatch();
    for (const QString& path : FileSelection::collectFiles(paths)) {
        addFileWithUrl(QUrl::fromLocalFile(path));
    }
    if (filesWaitingForDetails_.isEmpty() && !listMayContainVideo_) {
        addFilesToTableView();
    }
    return true;
}

void UploadBaseViewController::reloadTableView() {
    showPlaceholderForTableView(outlets_.filesTableView->numberOfRows() == 0);
    outlets_.filesTableView->reloadData();
}

void UploadBaseViewController::showPlaceholderForTableView(bool show) {
    outlets_.filesTableView->setVisible(!show);
    if (outlets_.filesTableFrame != nullptr) {
        outlets_.filesTableFrame->setVisible(!show);
    }
    outlets_.filesPlaceholder->setVisible(show);
}

void UploadBaseViewController::clearFilesTableView() {
    outlets_.filesTableView->setFiles({});
    reloadTableView();
}

void UploadBaseViewController::didRemoveFile(const FilePtr&) {
    if (outlets_.filesTableView->numberOfRows() == 0) {
        showPlaceholderForTableView(true);
    }
}

void UploadBaseViewController::startUpload(const UploadChoice& choice) {
    LOG_VERBOSE("startUpload");
    outlets_.uploadButton->setActionEnabled(false);
    const FileList files = selectedFiles();
    const QString missing =
        files.isEmpty() ? QStringLiteral("Please Select a File") : choice.missingChoice();
    if (!missing.isEmpty()) {
        showAlertWithMessage(missing);
        outlets_.uploadButton->setActionEnabled(true);
        return;
    }
    for (const FilePtr& file : files) {
        if (file->videoDetail && !UploadChoice::canPreserveOriginal(*file)) {
            file->videoDetail->preserveOriginal = false;
        }
    }
    // Pushed first: it listens from now on, and the job announces itself within the start.
    if (BaseViewController* progress = makeProgressScreen()) {
        pushViewController(progress, true);
    }
    dataManager().startUploadProcessForFiles(files, choice.parameters(), choice.toMediaLibrary);
    clearFilesTableView();
    abandonBatch();
    setScreenVisible(false);
}

BaseViewController* UploadBaseViewController::makeProgressScreen() const {
    return progressScreenFactory_ ? progressScreenFactory_() : nullptr;
}

void UploadBaseViewController::abandonBatch() {
    abandonedFiles_.append(filesWaitingForDetails_);
    startBatch();
    dragAndDropEnabled_ = true;
    scheduleStatusUpdate();
}

// Hundreds of files joining the list, or probe results arriving one by one, cost one update.
void UploadBaseViewController::scheduleStatusUpdate() {
    if (!statusUpdatePending_) {
        statusUpdatePending_ = true;
        QMetaObject::invokeMethod(this, &UploadBaseViewController::updateStatus,
                                  Qt::QueuedConnection);
    }
}

void UploadBaseViewController::updateStatus() {
    statusUpdatePending_ = false;
    const QString reading = FileListTexts::readingLine(filesWaitingForDetails_.size());
    outlets_.statusLabel->setText(
        reading.isEmpty() ? FileListTexts::batchLine(outlets_.filesTableView->files()) : reading);
}
