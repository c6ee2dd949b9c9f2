#pragma once

#include <QUrl>
#include <memory>

#include "service/HttpRequest.h"
#include "ui/screens/UploadBaseViewController.h"

namespace Ui {
class LocalEncodeViewController;
}

// The root screen: videos gathered into the list are encoded into the output folder. Only
// files that probing finds to be videos are taken. Beside the list it shows the output folder
// with "Save to...", the start button, and a promotional image from the maker's site (a picture
// of its own when no site is configured) that opens its link when clicked.
//
// The other two source buttons push the upload screens once the user is signed in and has the
// right; otherwise they are disabled and their tooltips say why.
//
// Ctrl+Return presses "Encode files".
class LocalEncodeViewController : public UploadBaseViewController {
    Q_OBJECT

public:
    explicit LocalEncodeViewController(
        AppDelegateInterface* appDelegate = AppDelegateInterface::applicationDelegate(),
        DataManager* dataManager = nullptr);
    ~LocalEncodeViewController() override;

    // The folder encodes go to, one for every screen of this kind: "Orvale Kesto Output" in the
    // home folder whenever such a screen is set up, then what the user chose.
    static QUrl outputDirectory();
    static QUrl defaultOutputDirectory();

    // Make the screens that "Project" and "Media library" push; the application sets them.
    void setUploadScreenFactories(ScreenFactory project, ScreenFactory mediaLibrary);
    void projectButtonDidTouch() override;
    void mediaLibButtonDidTouch() override;
    // Enables the upload sources by sign-in and rights, with their tooltips.
    void updateSourceButtons();

    bool canAddFile(const FilePtr& file) const override;
    void selectOutDirButtonDidTouch();
    void uploadButtonDidTouch() override;
    void adImageViewDidTouch();
    void showAd(const Notification& notification);
    void clearView();
    void activateView() override;

    // Where a click on the promotional image goes; empty until an image with a link arrived.
    const QUrl& adLink() const { return adLink_; }
    RoundedButton* selectOutDirButton() const;
    QLabel* outPathDisplay() const;
    ImageView* adImageView() const;

protected:
    void awakeFromNib() override;
    void signUpForNotifications() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showOutputDirectory();
    void loadAdImage(const QUrl& address);
    void pressUploadButtonFromKeyboard();
    void pushUploadScreen(const ScreenFactory& factory);
    void setRightsState(bool loaded, const QString& error);

    std::unique_ptr<Ui::LocalEncodeViewController> ui_;
    QUrl adLink_;
    HttpRequestId adImageRequest_ = 0;
    ScreenFactory projectScreenFactory_;
    ScreenFactory mediaLibScreenFactory_;
    bool rightsLoaded_ = false;
    QString rightsError_;
};
