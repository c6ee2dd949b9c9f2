#include "ui/files/DragAndDropDestinationView.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>

#include "platform/Log.h"
#include "ui/files/DragAndDropDestinationViewDelegate.h"

namespace {

const QColor kHoverRingColor(0x00, 0xa9, 0xe8);
constexpr qreal kHoverRingWidth = 2;

}  // namespace

DragAndDropDestinationView::DragAndDropDestinationView(QWidget* parent) : QWidget(parent) {}

void DragAndDropDestinationView::acceptDragAndDrop() { setAcceptDrops(true); }

bool DragAndDropDestinationView::canTake(const QMimeData* data, Qt::DropActions actions) const {
    return data != nullptr && data->hasUrls() && actions.testFlag(Qt::CopyAction);
}

bool DragAndDropDestinationView::performDragOperation(const QMimeData* data) {
    const QList<QUrl> urls = data != nullptr && data->hasUrls() ? data->urls() : QList<QUrl>();
    if (useURLPasteboard_) {
        if (!urls.isEmpty() && delegate_ != nullptr) {
            delegate_->dragAndDropFileURL(urls.first());
        }
        return true;
    }
    QStringList paths;
    for (const QUrl& url : urls) {
        if (url.isLocalFile()) {
            paths.append(url.toLocalFile());
        }
    }
    LOG_VERBOSE("Dropped {} paths", paths.size());
    if (!paths.isEmpty() && delegate_ != nullptr) {
        delegate_->dragAndDropFiles(paths);
    }
    return true;
}

void DragAndDropDestinationView::dragEnterEvent(QDragEnterEvent* event) { dragMoveEvent(event); }

void DragAndDropDestinationView::dragMoveEvent(QDragMoveEvent* event) {
    if (canTake(event->mimeData(), event->possibleActions())) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
        setDragHovering(true);
    } else {
        event->ignore();
        setDragHovering(false);
    }
}

void DragAndDropDestinationView::dragLeaveEvent(QDragLeaveEvent*) { setDragHovering(false); }

void DragAndDropDestinationView::dropEvent(QDropEvent* event) {
    setDragHovering(false);
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(performDragOperation(event->mimeData()));
}

void DragAndDropDestinationView::setDragHovering(bool hovering) {
    if (dragHovering_ != hovering) {
        dragHovering_ = hovering;
        update();
    }
}

void DragAndDropDestinationView::paintEvent(QPaintEvent*) {
    if (!dragHovering_) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kHoverRingColor, kHoverRingWidth));
    const qreal inset = kHoverRingWidth / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), 6, 6);
}
