#pragma once

#include <memory>

#include "model/Credit.h"
#include "model/MediaLibraryCategory.h"
#include "ui/metadata/TagsViewDelegate.h"
#include "ui/screens/UploadBaseViewController.h"

namespace Ui {
class MediaLibraryUploadViewController;
}

class CreditsView;
class LoadingStatusView;
class QComboBox;
class TagsView;

// Uploads the listed files into a media-library category, with the category's credit fields
// and tags. Every kind of file may go up; videos are encoded first unless set to "Do Not
// Encode", and may send their untouched source along. Credits left empty are not sent.
//
// The categories load when the screen is made, a category's credit fields when it is chosen;
// while a list loads its popup waits, and a failed load offers to try again.
class MediaLibraryUploadViewController : public UploadBaseViewController,
                                         public TagsViewDelegate {
    Q_OBJECT

public:
    explicit MediaLibraryUploadViewController(
        AppDelegateInterface* appDelegate = AppDelegateInterface::applicationDelegate(),
        DataManager* dataManager = nullptr);
    ~MediaLibraryUploadViewController() override;

    void uploadButtonDidTouch() override;
    void activateView() override;
    void addTitleBarButtons() override;
    void tagsViewDidChangeFrame() override;

    void loadMediaLibraryCategories();
    void selectCategory(int index);

    QComboBox* categoryPopup() const;
    LoadingStatusView* catalogueStatus() const;
    CreditsView* creditsView() const;
    TagsView* tagsView() const;

protected:
    void awakeFromNib() override;
    void signUpForNotifications() override;

private:
    enum class Waiting { Nothing, Categories, Credits };

    void didLoadCategories(const MediaLibraryCategoryList& categories);
    void didLoadCredits(const CreditList& credits);
    void didFailLoading(Waiting what, const Notification& notification);
    void retryLoading();
    void setWaiting(Waiting what);
    void layoutColumn();

    std::unique_ptr<Ui::MediaLibraryUploadViewController> ui_;
    MediaLibraryCategoryList categories_;
    MediaLibraryCategoryPtr chosenCategory_;
    Waiting waiting_ = Waiting::Nothing;
    Waiting failed_ = Waiting::Nothing;
};
