#include "ui/files/FileCell.h"

#include <QFontMetricsF>
#include <QLabel>
#include <QPainter>
#include <QWheelEvent>
#include <cmath>

#include "media/FFmpegUtilities.h"
#include "media/PresetSelection.h"
#include "model/FileListTexts.h"
#include "model/FileRowLayout.h"
#include "model/OutputSizeEstimate.h"
#include "ui/controls/ButtonWithImage.h"
#include "ui/controls/Checkbox.h"
#include "ui/controls/Fonts.h"
#include "ui/controls/RoundedView.h"
#include "ui/files/FileCellDelegate.h"

namespace {

constexpr int kPopupPanel = 15;
const QColor kSelectionColor(0xe5, 0xf4, 0xfc);

// The popup draws only its text: the panel behind it has the field and the arrow. The wheel
// scrolls the list instead of changing the size under the pointer.
class PresetPopupButton : public QComboBox {
public:
    using QComboBox::QComboBox;

protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

QLabel* makeLabel(QWidget* parent, int fontSize, const char* color) {
    auto* label = new QLabel(parent);
    label->setFont(Fonts::helveticaNeue(fontSize));
    label->setStyleSheet(QStringLiteral("color: %1;").arg(QLatin1String(color)));
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return label;
}

}  // namespace

FileCell::FileCell(QWidget* parent)
    : QWidget(parent),
      filenameLabel_(makeLabel(this, 13, "#333333")),
      detailLabel_(makeLabel(this, 11, "#8a9199")),
      selectFormatPopupButtonBackground_(new RoundedView(this)),
      selectFormatPopupButton_(new PresetPopupButton(this)),
      sizeBandLabel_(makeLabel(this, 11, "#8a9199")),
      preserveOriginalCheckbox_(new Checkbox(this)),
      removeButton_(new ButtonWithImage(this)) {
    removeButton_->setNormalImage(QStringLiteral("button_delete_file.png"));
    removeButton_->setHighlightedImage(QStringLiteral("button_delete_file_highlighted.png"));
    selectFormatPopupButtonBackground_->setType(kPopupPanel);
    selectFormatPopupButton_->setFont(Fonts::helveticaNeue(12));
    selectFormatPopupButton_->setStyleSheet(QStringLiteral(
        "QComboBox { border: none; background: transparent; color: #333333; padding-left: 7px; }"
        "QComboBox::drop-down { border: none; width: 22px; }"
        "QComboBox::down-arrow { image: none; }"));
    selectFormatPopupButton_->setAccessibleName(QStringLiteral("Size"));
    preserveOriginalCheckbox_->setTitleString(QStringLiteral("Preserve original"));
    preserveOriginalCheckbox_->hide();
    // The list has the keyboard: it moves the selection, removes rows and opens popups.
    for (QWidget* control : std::initializer_list<QWidget*>{
             selectFormatPopupButton_, preserveOriginalCheckbox_, removeButton_}) {
        control->setFocusPolicy(Qt::NoFocus);
    }
    connect(selectFormatPopupButton_, &QComboBox::activated, this,
            &FileCell::popupButtonSelectionChanged);
    connect(preserveOriginalCheckbox_, &Checkbox::triggered, this,
            [this] { preserveOriginalCheckboxChanged(preserveOriginalCheckbox_); });
    connect(removeButton_, &ButtonWithImage::triggered, this, &FileCell::removeButtonDidTouch);
}

void FileCell::setSelected(bool selected) {
    if (selected_ != selected) {
        selected_ = selected;
        update();
    }
}

void FileCell::setFile(const FilePtr& file) {
    file_ = file;
    const bool isVideo = file_ && file_->isVideo && file_->videoDetail;
    const QString name = file_ ? file_->fileName() : QString();
    filenameLabel_->setToolTip(name);
    filenameLabel_->setAccessibleName(name);
    removeButton_->setAccessibleName(QStringLiteral("Remove %1").arg(name));
    selectFormatPopupButton_->setVisible(isVideo);
    selectFormatPopupButtonBackground_->setVisible(isVideo);
    sizeBandLabel_->setVisible(isVideo);
    if (hasPreserveOriginal_) {
        preserveOriginalCheckbox_->setVisible(isVideo);
        preserveOriginalCheckbox_->setSelected(isVideo && file_->videoDetail->preserveOriginal);
    } else {
        preserveOriginalCheckbox_->hide();
    }
    if (isVideo) {
        reloadFormatPopupButton();
    } else {
        resolutionsByWidth_.clear();
        selectFormatPopupButton_->clear();
    }
    showTexts();
    layOut();
}

void FileCell::reloadFormatPopupButton() {
    const QSignalBlocker quiet(selectFormatPopupButton_);
    selectFormatPopupButton_->clear();
    const PresetSelection::Result selection =
        PresetSelection::reload(*file_->videoDetail, hasDoNotEncode_);
    resolutionsByWidth_ = selection.rows;
    for (const PresetRow& row : resolutionsByWidth_) {
        addMenuItemWithTitle(row.sizeDescription);
    }
    selectFormatPopupButton_->setCurrentIndex(static_cast<int>(selection.selectedIndex));
}

void FileCell::addMenuItemWithTitle(const QString& title) {
    selectFormatPopupButton_->addItem(title);
    selectFormatPopupButton_->setItemData(selectFormatPopupButton_->count() - 1,
                                          Fonts::helveticaNeue(12), Qt::FontRole);
}

void FileCell::popupButtonSelectionChanged() {
    if (!file_ || !file_->videoDetail) {
        return;
    }
    const qsizetype index = selectFormatPopupButton_->currentIndex();
    const PresetRow chosen = index >= 0 && index < resolutionsByWidth_.size()
                                 ? resolutionsByWidth_.at(index)
                                 : PresetRow{};
    FFmpegUtilities::applyPreset(chosen, *file_->videoDetail);
    showTexts();
    layOut();
    if (delegate_ != nullptr) {
        delegate_->fileCellDidChangeChoice(this, file_);
    }
}

void FileCell::preserveOriginalCheckboxChanged(Checkbox* checkbox) {
    if (!file_ || !file_->videoDetail) {
        return;
    }
    file_->videoDetail->preserveOriginal = checkbox->isSelected();
    if (delegate_ != nullptr) {
        delegate_->fileCellDidChangeChoice(this, file_);
    }
}

void FileCell::removeButtonDidTouch() {
    if (delegate_ != nullptr && file_) {
        delegate_->fileCellDidRemoveFile(this, file_);
    }
}

void FileCell::showTexts() {
    if (!file_) {
        detailText_.clear();
        sizeBandLabel_->clear();
        return;
    }
    detailText_ = FileListTexts::rowDetail(*file_);
    const auto estimate = OutputSizeEstimate::forFile(*file_);
    sizeBandLabel_->setText(estimate ? estimate->text() : QString());
}

void FileCell::layOut() {
    const QString name = file_ ? file_->fileName() : QString();
    const QFontMetricsF nameMetrics(filenameLabel_->font());
    const FileRowLayout::Frames frames = FileRowLayout::frames(
        {.rowWidth = static_cast<qreal>(width()),
         .nameTextWidth = std::ceil(nameMetrics.horizontalAdvance(name)),
         .detailTextWidth =
             std::ceil(QFontMetricsF(detailLabel_->font()).horizontalAdvance(detailText_)),
         .showsPopup = selectFormatPopupButton_->isVisibleTo(this),
         .showsCheckbox = preserveOriginalCheckbox_->isVisibleTo(this)});
    filenameLabel_->setGeometry(frames.name.toRect());
    filenameLabel_->setText(nameMetrics.elidedText(name, Qt::ElideMiddle, frames.name.width()));
    detailLabel_->setGeometry(frames.detail.toRect());
    detailLabel_->setText(QFontMetricsF(detailLabel_->font())
                              .elidedText(detailText_, Qt::ElideRight, frames.detail.width()));
    selectFormatPopupButtonBackground_->setGeometry(frames.popup.toRect());
    selectFormatPopupButton_->setGeometry(frames.popup.toRect());
    sizeBandLabel_->setGeometry(frames.sizeBand.toRect());
    preserveOriginalCheckbox_->setGeometry(frames.checkbox.toRect());
    removeButton_->setGeometry(frames.remove.toRect());
}

void FileCell::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    layOut();
}

void FileCell::paintEvent(QPaintEvent*) {
    if (selected_) {
        // The list's separator line under the row stays visible.
        QPainter(this).fillRect(rect().adjusted(0, 0, 0, -1), kSelectionColor);
    }
}
