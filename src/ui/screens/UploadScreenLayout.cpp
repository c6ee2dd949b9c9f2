#include "ui/screens/UploadScreenLayout.h"

#include <QComboBox>
#include <QLabel>
#include <QScrollArea>
#include <QShortcut>

#include "model/ErrorResponse.h"
#include "platform/NotificationCenter.h"
#include "ui/controls/ButtonWithImage.h"
#include "ui/controls/Fonts.h"
#include "ui/controls/LoadingStatusView.h"
#include "ui/controls/RoundedButton.h"
#include "ui/controls/RoundedView.h"
#include "ui/files/FilesTableView.h"
#include "ui/screens/UploadBaseViewController.h"

namespace {

constexpr int kContentBottomMargin = 12;
constexpr int kGapUnderCaption = 6;
constexpr int kGapBetweenGroups = 14;

}  // namespace

void UploadScreenLayout::setUp(UploadBaseViewController& screen, const Pieces& pieces,
                               const QList<QLabel*>& captions) {
    screen.filesTableView()->setHasDoNotEncode(true);
    screen.filesTableView()->setHasPreserveOriginal(true);
    // The title strip's Back leads to the other sources; the list's own buttons would repeat it.
    for (QWidget* unused :
         std::initializer_list<QWidget*>{screen.localButton(), screen.mediaLibButton(),
                                         screen.projectButton(), screen.addButton()}) {
        unused->hide();
    }
    for (const QKeySequence& keys :
         {QKeySequence(Qt::CTRL | Qt::Key_Return), QKeySequence(Qt::CTRL | Qt::Key_Enter)}) {
        QObject::connect(new QShortcut(keys, &screen), &QShortcut::activated, &screen, [&screen] {
            if (screen.isScreenVisible() && screen.uploadButton()->isActionEnabled()) {
                screen.uploadButtonDidTouch();
            }
        });
    }
    pieces.filesTableFrame->setType(2);
    pieces.statusLabel->setFont(Fonts::helveticaNeue(12));
    pieces.heading->setFont(Fonts::helveticaNeueBold(16));
    // The screen's white shows through the column.
    pieces.metadataScrollArea->viewport()->setAutoFillBackground(false);
    pieces.metadataScrollArea->widget()->setAutoFillBackground(false);
    for (QLabel* caption : captions) {
        caption->setFont(Fonts::helveticaNeueBold(12));
    }
}

void UploadScreenLayout::stackColumn(QWidget& content, const QList<QWidget*>& views) {
    int y = 0;
    int gap = 0;
    for (QWidget* view : views) {
        if (view->isHidden()) {
            continue;
        }
        y += gap;
        view->move(view->x(), y);
        y += view->height();
        gap = qobject_cast<QLabel*>(view) != nullptr ? kGapUnderCaption : kGapBetweenGroups;
    }
    content.resize(content.width(), y + kContentBottomMargin);
}

void UploadScreenLayout::fillPopupWithNames(QComboBox& popup, const QStringList& names,
                                            LoadingStatusView& status, const QString& emptyNote) {
    popup.clear();
    popup.addItems(names);
    popup.setCurrentIndex(-1);
    if (names.isEmpty()) {
        status.showNote(emptyNote);
    } else {
        status.clear();
    }
}

QString UploadScreenLayout::failureText(const Notification& notification) {
    return ErrorResponse::messageOr(notification.object.value<ErrorResponsePtr>(),
                                    QStringLiteral("The service did not answer."));
}
