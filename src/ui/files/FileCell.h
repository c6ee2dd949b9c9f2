#pragma once

#include <QComboBox>
#include <QList>
#include <QWidget>

#include "media/PresetRow.h"
#include "model/File.h"

class ButtonWithImage;
class Checkbox;
class FileCellDelegate;
class QLabel;
class RoundedView;

// One row of the file list: the file's name (shortened in the middle) with the clip's duration
// and frame size beside it, for a video the size popup with the expected output size under
// it, on upload screens the preserve-original checkbox, and the remove button. The row keeps
// no choice of its own: each time it is given a file it reads the chosen size back from the
// file's details, and a fresh video gets the first size offered. Rows are recycled by the
// table under their identifier.
class FileCell : public QWidget {
    Q_OBJECT

public:
    static inline const QString kIdentifier = QStringLiteral("FileCellIdentifier");

    explicit FileCell(QWidget* parent = nullptr);

    QString identifier() const { return kIdentifier; }

    const FilePtr& file() const { return file_; }
    void setFile(const FilePtr& file);
    FileCellDelegate* delegate() const { return delegate_; }
    void setDelegate(FileCellDelegate* delegate) { delegate_ = delegate; }
    bool hasDoNotEncode() const { return hasDoNotEncode_; }
    void setHasDoNotEncode(bool on) { hasDoNotEncode_ = on; }
    bool hasPreserveOriginal() const { return hasPreserveOriginal_; }
    void setHasPreserveOriginal(bool on) { hasPreserveOriginal_ = on; }
    bool isSelected() const { return selected_; }
    void setSelected(bool selected);

    // The sizes offered for the file shown, as the popup lists them.
    const QList<PresetRow>& resolutionsByWidth() const { return resolutionsByWidth_; }

    void reloadFormatPopupButton();
    void addMenuItemWithTitle(const QString& title);
    void popupButtonSelectionChanged();
    void preserveOriginalCheckboxChanged(Checkbox* checkbox);
    void removeButtonDidTouch();

    QLabel* filenameLabel() const { return filenameLabel_; }
    QLabel* detailLabel() const { return detailLabel_; }
    QLabel* sizeBandLabel() const { return sizeBandLabel_; }
    ButtonWithImage* removeButton() const { return removeButton_; }
    QComboBox* selectFormatPopupButton() const { return selectFormatPopupButton_; }
    RoundedView* selectFormatPopupButtonBackground() const {
        return selectFormatPopupButtonBackground_;
    }
    Checkbox* preserveOriginalCheckbox() const { return preserveOriginalCheckbox_; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void showTexts();
    void layOut();

    FilePtr file_;
    FileCellDelegate* delegate_ = nullptr;
    bool hasDoNotEncode_ = false;
    bool hasPreserveOriginal_ = false;
    bool selected_ = false;
    QList<PresetRow> resolutionsByWidth_;
    QString detailText_;

    QLabel* filenameLabel_;
    QLabel* detailLabel_;
    RoundedView* selectFormatPopupButtonBackground_;
    QComboBox* selectFormatPopupButton_;
    QLabel* sizeBandLabel_;
    Checkbox* preserveOriginalCheckbox_;
    ButtonWithImage* removeButton_;
};
