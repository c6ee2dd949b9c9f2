#pragma once

#include <QWidget>

class DragAndDropDestinationViewDelegate;
class QMimeData;

// The area files are dropped on: it takes URI lists (what file managers drag) with the copy
// action only, and hands the local paths, or in URL mode the one URL, to its delegate. It
// also takes drops over its children that don't take drops themselves, so it is best put
// behind (as the parent of) the views it covers. While an acceptable drag hovers, it rings its
// edge in the app's blue.
class DragAndDropDestinationView : public QWidget {
    Q_OBJECT

public:
    explicit DragAndDropDestinationView(QWidget* parent = nullptr);

    DragAndDropDestinationViewDelegate* delegate() const { return delegate_; }
    void setDelegate(DragAndDropDestinationViewDelegate* delegate) { delegate_ = delegate; }
    bool useURLPasteboard() const { return useURLPasteboard_; }
    void setUseURLPasteboard(bool on) { useURLPasteboard_ = on; }

    // Starts taking drops.
    void acceptDragAndDrop();
    bool isDragHovering() const { return dragHovering_; }

    // Whether a drag offering this data and these actions would be copied here.
    bool canTake(const QMimeData* data, Qt::DropActions actions) const;
    // Hands what the data carries to the delegate; true in every case.
    bool performDragOperation(const QMimeData* data);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void setDragHovering(bool hovering);

    DragAndDropDestinationViewDelegate* delegate_ = nullptr;
    bool useURLPasteboard_ = false;
    bool dragHovering_ = false;
};
