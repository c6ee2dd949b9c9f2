#include "ui/screens/LocalEncodeViewController.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QMouseEvent>
#include <QPointer>
#include <QShortcut>

#include "jobs/DataManager.h"
#include "jobs/NotificationNames.h"
#include "model/HEX.h"
#include "model/SourceButtonStates.h"
#include "platform/Log.h"
#include "platform/NotificationCenter.h"
#include "service/HttpTransport.h"
#include "service/MakerSite.h"
#include "ui/controls/ButtonWithImage.h"
#include "ui/controls/ColoredView.h"
#include "ui/controls/Fonts.h"
#include "ui/controls/ImageView.h"
#include "ui/controls/RoundedButton.h"
#include "ui/controls/RoundedView.h"
#include "ui/files/DragAndDropDestinationView.h"
#include "ui/files/FilesTableView.h"
#include "ui/navigation/SheetFocus.h"
#include "ui_LocalEncodeViewController.h"

namespace {

const QString kBuiltInPromotion = QStringLiteral("illustration_promotion.png");

QUrl& sharedOutputDirectory() {
    static QUrl folder;
    return folder;
}

}  // namespace

LocalEncodeViewController::LocalEncodeViewController(AppDelegateInterface* appDelegate,
                                                     DataManager* dataManager)
    : UploadBaseViewController(appDelegate, dataManager),
      ui_(std::make_unique<Ui::LocalEncodeViewController>()) {
    LOG_INFO("LocalEncodeViewController init");
    NotificationCenter::defaultCenter().addObserver(
        this, MakerSite::kNotificationAdReady,
        [this](const Notification& notification) { showAd(notification); });
    ui_->setupUi(this);
    setOutletsFrom(*ui_);
}

LocalEncodeViewController::~LocalEncodeViewController() {
    if (adImageRequest_ != 0) {
        dataManager().serverManager().transport().cancel(adImageRequest_);
    }
}

void LocalEncodeViewController::awakeFromNib() {
    LOG_INFO("LocalEncodeViewController awakeFromNib");
    UploadBaseViewController::awakeFromNib();
    filesTableView()->setHasDoNotEncode(false);
    uploadButton()->setTitleString(QStringLiteral("Encode files"));
    selectOutDirButton()->setType(3);
    selectOutDirButton()->setTitleColor(HEX::colorWithHexString(QStringLiteral("#666666")));
    selectOutDirButton()->setTitleString(QStringLiteral("Save to..."));
    connect(selectOutDirButton(), &RoundedButton::triggered, this,
            &LocalEncodeViewController::selectOutDirButtonDidTouch);
    ui_->filesTableFrame->setType(2);
    ui_->outPathBackground->setType(1);
    ui_->outputFolderTitle->setFont(Fonts::helveticaNeueBold(12));
    ui_->outPathDisplay->setFont(Fonts::helveticaNeue(12));
    ui_->statusLabel->setFont(Fonts::helveticaNeue(12));
    sharedOutputDirectory() = defaultOutputDirectory();
    showOutputDirectory();
    localButton()->setNormalImage(QStringLiteral("button_source_local.png"));
    localButton()->setSelectedImage(QStringLiteral("button_source_local_selected.png"));
    localButton()->setSelected(true);
    localButton()->setDisableAfterSelected(true);
    projectButton()->setNormalImage(QStringLiteral("button_source_project.png"));
    projectButton()->setHighlightedImage(QStringLiteral("button_source_project_selected.png"));
    mediaLibButton()->setNormalImage(QStringLiteral("button_source_media_library.png"));
    mediaLibButton()->setHighlightedImage(
        QStringLiteral("button_source_media_library_selected.png"));
    updateSourceButtons();
    addTitleBarButtons();

    adImageView()->setAccessibleName(QStringLiteral("Promotion"));
    adImageView()->installEventFilter(this);
    if (MakerSite::isConfigured()) {
        adImageView()->setCursor(Qt::PointingHandCursor);
        dataManager().getAds();
    } else {
        adImageView()->setImageName(kBuiltInPromotion);
    }

    for (const QKeySequence& keys :
         {QKeySequence(Qt::CTRL | Qt::Key_Return), QKeySequence(Qt::CTRL | Qt::Key_Enter)}) {
        auto* shortcut = new QShortcut(keys, this);
        connect(shortcut, &QShortcut::activated, this,
                &LocalEncodeViewController::pressUploadButtonFromKeyboard);
    }
}

void LocalEncodeViewController::signUpForNotifications() {
    using namespace NotificationNames;
    UploadBaseViewController::signUpForNotifications();
    NotificationCenter& center = NotificationCenter::defaultCenter();
    center.addObserver(this, kNotificationDidFinishLoggingIn, [this](const Notification&) {
        setRightsState(false, {});
        dataManager().loadPermissions();
    });
    center.addObserver(this, kNotificationDidFinishLoadingPermissions,
                       [this](const Notification&) { setRightsState(true, {}); });
    center.addObserver(
        this, kNotificationDidFailLoadingPermissions, [this](const Notification& notification) {
            setRightsState(false,
                           ErrorResponse::messageOr(notification.object.value<ErrorResponsePtr>(),
                                                    QStringLiteral("no answer")));
        });
    center.addObserver(this, kNotificationDidFinishLoggingOut,
                       [this](const Notification&) { setRightsState(false, {}); });
}

void LocalEncodeViewController::setRightsState(bool loaded, const QString& error) {
    rightsLoaded_ = loaded;
    rightsError_ = error;
    updateSourceButtons();
}

void LocalEncodeViewController::updateSourceButtons() {
    const SourceButtonStates::Session session{
        .signedIn = dataManager().loggedinUser() != nullptr,
        .rightsLoaded = rightsLoaded_,
        .rightsError = rightsError_,
        .hasProjectsAccess = dataManager().hasProjectsAccess(),
        .hasMediaLibAccess = dataManager().hasMediaLibAccess()};
    const std::pair<ButtonWithImage*, SourceButtonStates::State> buttons[] = {
        {projectButton(), SourceButtonStates::projectButton(session)},
        {mediaLibButton(), SourceButtonStates::mediaLibButton(session)}};
    for (const auto& [button, state] : buttons) {
        button->setEnabled(state.enabled);
        button->setToolTip(state.toolTip);
        button->setAccessibleDescription(state.toolTip);
    }
}

void LocalEncodeViewController::setUploadScreenFactories(ScreenFactory project,
                                                         ScreenFactory mediaLibrary) {
    projectScreenFactory_ = std::move(project);
    mediaLibScreenFactory_ = std::move(mediaLibrary);
}

void LocalEncodeViewController::projectButtonDidTouch() { pushUploadScreen(projectScreenFactory_); }

void LocalEncodeViewController::mediaLibButtonDidTouch() {
    pushUploadScreen(mediaLibScreenFactory_);
}

void LocalEncodeViewController::pushUploadScreen(const ScreenFactory& factory) {
    if (!isScreenVisible() || !factory) {
        return;
    }
    if (BaseViewController* screen = factory()) {
        pushViewController(screen, true);
    }
}

QUrl LocalEncodeViewController::outputDirectory() { return sharedOutputDirectory(); }

QUrl LocalEncodeViewController::defaultOutputDirectory() {
    return QUrl::fromLocalFile(QDir::home().filePath(QStringLiteral("Orvale Kesto Output")));
}

RoundedButton* LocalEncodeViewController::selectOutDirButton() const {
    return ui_->selectOutDirButton;
}

QLabel* LocalEncodeViewController::outPathDisplay() const { return ui_->outPathDisplay; }

ImageView* LocalEncodeViewController::adImageView() const { return ui_->adImageView; }

bool LocalEncodeViewController::canAddFile(const FilePtr& file) const {
    return UploadBaseViewController::canAddFile(file) && file->isVideo;
}

void LocalEncodeViewController::showOutputDirectory() {
    const QString path = QDir::toNativeSeparators(sharedOutputDirectory().toLocalFile());
    QLabel* display = outPathDisplay();
    display->setToolTip(path);
    display->setAccessibleName(QStringLiteral("Output folder %1").arg(path));
    display->setText(display->fontMetrics().elidedText(path, Qt::ElideMiddle, display->width()));
}

void LocalEncodeViewController::selectOutDirButtonDidTouch() {
    QFileDialog panel(window(), QStringLiteral("Select Output Folder"));
    panel.setFileMode(QFileDialog::Directory);
    panel.setOption(QFileDialog::ShowDirsOnly);
    panel.setLabelText(QFileDialog::Accept, QStringLiteral("Select"));
    const QString current = sharedOutputDirectory().toLocalFile();
    panel.setDirectory(QDir(current).exists() ? current : QDir::homePath());
    SheetFocus::returnAfter(&panel);
    if (panel.exec() == QDialog::Accepted && !panel.selectedUrls().isEmpty()) {
        sharedOutputDirectory() = panel.selectedUrls().constFirst();
        showOutputDirectory();
    }
}

void LocalEncodeViewController::pressUploadButtonFromKeyboard() {
    if (isScreenVisible() && uploadButton()->isActionEnabled()) {
        uploadButtonDidTouch();
    }
}

void LocalEncodeViewController::uploadButtonDidTouch() {
    LOG_VERBOSE("startLocalEncode");
    uploadButton()->setActionEnabled(false);
    if (selectedFiles().isEmpty()) {
        showAlertWithMessage(QStringLiteral("Please Select a File"));
        uploadButton()->setActionEnabled(true);
        return;
    }
    // Pushed first: it listens from now on, and the job announces itself within the start.
    BaseViewController* progress = makeProgressScreen();
    if (progress != nullptr) {
        pushViewController(progress, true);
    }
    LOG_VERBOSE("StartLocalEncode");
    const QString refusal =
        dataManager().startLocalEncodeForFiles(selectedFiles(), sharedOutputDirectory());
    if (!refusal.isEmpty()) {
        // Nothing started: back to the list as it was, saying why.
        if (progress != nullptr) {
            popViewControllerAnimated(true);
        }
        showAlertWithMessage(refusal);
        uploadButton()->setActionEnabled(true);
        return;
    }
    clearView();
    abandonBatch();
    setScreenVisible(false);
}

void LocalEncodeViewController::clearView() { clearFilesTableView(); }

void LocalEncodeViewController::activateView() {
    UploadBaseViewController::activateView();
    addTitleBarButtons();
    uploadButton()->setActionEnabled(true);
    localButton()->setSelected(true);
}

void LocalEncodeViewController::showAd(const Notification& notification) {
    adLink_ = QUrl(notification.userInfo.value(QStringLiteral("url")).toString());
    loadAdImage(QUrl(notification.userInfo.value(QStringLiteral("asset")).toString()));
}

// Fetched in the background: a slow or absent site leaves the area empty, never the window
// waiting. Only web addresses are fetched; the answer names what to show, not what to read.
void LocalEncodeViewController::loadAdImage(const QUrl& address) {
    HttpTransport& transport = dataManager().serverManager().transport();
    transport.cancel(adImageRequest_);
    adImageRequest_ = 0;
    adImageView()->setPixmap({});
    const QString scheme = address.scheme().toLower();
    if (scheme != QLatin1String("http") && scheme != QLatin1String("https")) {
        LOG_VERBOSE("No promotional image to load from '{}'", address.toString());
        return;
    }
    QPointer<LocalEncodeViewController> self(this);
    HttpTransport::Callbacks callbacks;
    callbacks.finished = [self, address](const HttpResponse& response) {
        if (self == nullptr) {
            return;
        }
        self->adImageRequest_ = 0;
        QPixmap image;
        if (response.status == 200 && image.loadFromData(response.body)) {
            self->adImageView()->setPixmap(image);
        } else {
            LOG_VERBOSE("Promotional image not loaded from {}: {} {}", address.toString(),
                        response.status, response.errorText);
        }
    };
    adImageRequest_ = transport.send(HttpRequest::get(address), std::move(callbacks));
}

void LocalEncodeViewController::adImageViewDidTouch() {
    LOG_VERBOSE("adImageViewDidTouch");
    if (!adLink_.isEmpty()) {
        QDesktopServices::openUrl(adLink_);
    } else if (const MakerSite site = MakerSite::current(); site.hasHost()) {
        QDesktopServices::openUrl(QUrl(site.demoURL()));
    }
}

bool LocalEncodeViewController::eventFilter(QObject* watched, QEvent* event) {
    if (watched == adImageView() && event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton &&
        adImageView()->rect().contains(static_cast<QMouseEvent*>(event)->position().toPoint())) {
        adImageViewDidTouch();
        return true;
    }
    return UploadBaseViewController::eventFilter(watched, event);
}
