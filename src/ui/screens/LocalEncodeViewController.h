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
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showOutputDirectory();
    void loadAdImage(const QUrl& address);
    void pressUploadButtonFromKeyboard();

    std::unique_ptr<Ui::LocalEncodeViewController> ui_;
    QUrl adLink_;
    HttpRequestId adImageRequest_ = 0;
};
