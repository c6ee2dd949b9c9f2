#pragma once

#include <QList>
#include <memory>

#include "ui/navigation/BaseViewController.h"

class ColoredView;
class ImageView;
class QLabel;
class QScrollArea;
class RoundedButton;

namespace Ui {
class FilesLocalEncodedViewController;
}

// What a job came to: how many files were completed, which failed (by name), and three ways on:
// open the output folder, try the failed files again, or go back to the file selection. The
// content is computed once, when the screen is set up, from the job manager.
class FilesLocalEncodedViewController : public BaseViewController {
    Q_OBJECT

public:
    explicit FilesLocalEncodedViewController(
        AppDelegateInterface* appDelegate = AppDelegateInterface::applicationDelegate(),
        DataManager* dataManager = nullptr);
    ~FilesLocalEncodedViewController() override;

    void showLogViewIfNeeded();
    void homeButtonDidTouch();
    void accountButtonDidTouch();
    void tryAgainButtonDidTouch();
    void activateView() override;

    ColoredView* coloredView() const;
    QWidget* componentsView() const;
    ImageView* imageView() const;
    QLabel* uploadCountLabel() const;
    QLabel* notUploadedLabel() const;
    QScrollArea* scrollView() const;
    QWidget* logView() const;
    const QList<QLabel*>& logRows() const { return logRows_; }
    ButtonWithIcon* tryAgainButton() const;
    RoundedButton* homeButton() const;
    RoundedButton* accountButton() const;

protected:
    void awakeFromNib() override;

private:
    void addLogRows();

    std::unique_ptr<Ui::FilesLocalEncodedViewController> ui_;
    QList<QLabel*> logRows_;
};
