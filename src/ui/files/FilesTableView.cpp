#include "ui/files/FilesTableView.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "media/PresetSelection.h"
#include "model/FileRowLayout.h"
#include "ui/files/FileCell.h"
#include "ui/files/FilesTableViewDelegate.h"

namespace {

constexpr int kRowHeight = static_cast<int>(FileRowLayout::kRowHeight);
constexpr int kScrollStep = 20;
const QColor kGridColor(0xe9, 0xec, 0xef);

}  // namespace

FilesTableView::FilesTableView(QWidget* parent) : QAbstractScrollArea(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    verticalScrollBar()->setSingleStep(kScrollStep);
    viewport()->setAutoFillBackground(true);
    QPalette white = viewport()->palette();
    white.setColor(QPalette::Window, Qt::white);
    viewport()->setPalette(white);
    setAccessibleName(QStringLiteral("Files"));
}

FilesTableView::~FilesTableView() = default;

void FilesTableView::addFile(const FilePtr& file) {
    configure(file);
    files_.append(file);
    reloadData();
    emit filesChanged();
}

void FilesTableView::setFiles(const FileList& files) {
    for (const FilePtr& file : files) {
        configure(file);
    }
    files_ = files;
    selectedRow_ = -1;
    reloadData();
    emit filesChanged();
}

void FilesTableView::setHasDoNotEncode(bool on) {
    hasDoNotEncode_ = on;
    reloadData();
}

void FilesTableView::setHasPreserveOriginal(bool on) {
    hasPreserveOriginal_ = on;
    reloadData();
}

// What the file's row does when shown, done at once, so that files whose rows never came into
// sight are encoded at a size too.
void FilesTableView::configure(const FilePtr& file) const {
    if (file && file->isVideo && file->videoDetail) {
        PresetSelection::reload(*file->videoDetail, hasDoNotEncode_);
    }
}

FileCell* FilesTableView::cellForRow(qsizetype row) {
    layoutIfNeeded();
    return visibleCells_.value(row, nullptr);
}

QList<FileCell*> FilesTableView::visibleCells() {
    layoutIfNeeded();
    QList<qsizetype> rows = visibleCells_.keys();
    std::sort(rows.begin(), rows.end());
    QList<FileCell*> cells;
    for (const qsizetype row : rows) {
        cells.append(visibleCells_.value(row));
    }
    return cells;
}

qsizetype FilesTableView::reusableCellCount() const {
    return reuseStore_.value(FileCell::kIdentifier).size();
}

// Many files added in one go cost one relayout.
void FilesTableView::reloadData() {
    updateScrollBar();
    viewport()->update();
    if (!reloadPending_) {
        reloadPending_ = true;
        QMetaObject::invokeMethod(this, &FilesTableView::layoutIfNeeded, Qt::QueuedConnection);
    }
}

void FilesTableView::layoutIfNeeded() {
    if (!reloadPending_) {
        return;
    }
    reloadPending_ = false;
    for (FileCell* cell : std::as_const(visibleCells_)) {
        recycle(cell);
    }
    visibleCells_.clear();
    layoutRows();
}

void FilesTableView::layoutRows() {
    const int top = verticalScrollBar()->value();
    const qsizetype first = rowAt(0);
    const qsizetype last = std::min(numberOfRows() - 1, rowAt(viewport()->height() - 1));
    for (auto entry = visibleCells_.begin(); entry != visibleCells_.end();) {
        if (entry.key() < first || entry.key() > last) {
            recycle(entry.value());
            entry = visibleCells_.erase(entry);
        } else {
            ++entry;
        }
    }
    for (qsizetype row = first; row <= last; ++row) {
        FileCell* cell = visibleCells_.value(row, nullptr);
        if (cell == nullptr) {
            cell = viewForRow(row);
            visibleCells_.insert(row, cell);
        }
        cell->setGeometry(0, static_cast<int>(row) * kRowHeight - top, viewport()->width(),
                          kRowHeight);
        cell->setSelected(row == selectedRow_);
        cell->show();
    }
    viewport()->update();
}

FileCell* FilesTableView::viewForRow(qsizetype row) {
    FileCell* cell = makeViewWithIdentifier(FileCell::kIdentifier);
    if (cell == nullptr) {
        cell = new FileCell(viewport());
    }
    cell->setHasDoNotEncode(hasDoNotEncode_);
    cell->setHasPreserveOriginal(hasPreserveOriginal_);
    cell->setFile(files_.at(row));
    cell->setDelegate(this);
    return cell;
}

FileCell* FilesTableView::makeViewWithIdentifier(const QString& identifier) {
    QList<FileCell*>& store = reuseStore_[identifier];
    return store.isEmpty() ? nullptr : store.takeLast();
}

void FilesTableView::recycle(FileCell* cell) {
    cell->hide();
    cell->setSelected(false);
    reuseStore_[cell->identifier()].append(cell);
}

void FilesTableView::updateScrollBar() {
    const int contentHeight = static_cast<int>(numberOfRows()) * kRowHeight;
    verticalScrollBar()->setRange(0, std::max(0, contentHeight - viewport()->height()));
    verticalScrollBar()->setPageStep(viewport()->height());
}

qsizetype FilesTableView::rowAt(int viewportY) const {
    return (verticalScrollBar()->value() + viewportY) / kRowHeight;
}

int FilesTableView::rowsPerPage() const { return std::max(1, viewport()->height() / kRowHeight); }

void FilesTableView::selectRow(qsizetype row) {
    selectedRow_ = numberOfRows() == 0 ? -1 : std::clamp<qsizetype>(row, 0, numberOfRows() - 1);
    for (auto entry = visibleCells_.cbegin(); entry != visibleCells_.cend(); ++entry) {
        entry.value()->setSelected(entry.key() == selectedRow_);
    }
    if (selectedRow_ >= 0) {
        scrollToRow(selectedRow_);
    }
}

void FilesTableView::scrollToRow(qsizetype row) {
    const int rowTop = static_cast<int>(row) * kRowHeight;
    QScrollBar* bar = verticalScrollBar();
    if (rowTop < bar->value()) {
        bar->setValue(rowTop);
    } else if (rowTop + kRowHeight > bar->value() + viewport()->height()) {
        bar->setValue(rowTop + kRowHeight - viewport()->height());
    }
}

// The file is taken by value: the keyboard passes an element of files_ itself.
void FilesTableView::fileCellDidRemoveFile(FileCell*, const FilePtr& removing) {
    const FilePtr file = removing;
    if (!files_.contains(file)) {
        return;
    }
    files_.removeAll(file);
    if (selectedRow_ >= numberOfRows()) {
        selectedRow_ = numberOfRows() - 1;
    }
    if (componentDelegate_ != nullptr) {
        componentDelegate_->didRemoveFile(file);
    }
    reloadData();
    emit filesChanged();
}

void FilesTableView::fileCellDidChangeChoice(FileCell*, const FilePtr&) { emit filesChanged(); }

void FilesTableView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    updateScrollBar();
    layoutIfNeeded();
    layoutRows();
}

// Rows are placed anew rather than scrolled as pixels: rows that come into sight need a file.
void FilesTableView::scrollContentsBy(int, int) {
    layoutIfNeeded();
    layoutRows();
}

void FilesTableView::paintEvent(QPaintEvent*) {
    if (numberOfRows() == 0) {
        return;
    }
    QPainter painter(viewport());
    painter.setPen(kGridColor);
    const int top = verticalScrollBar()->value();
    const qsizetype last = std::min(numberOfRows() - 1, rowAt(viewport()->height() - 1));
    for (qsizetype row = rowAt(0); row <= last; ++row) {
        const int y = static_cast<int>(row + 1) * kRowHeight - top - 1;
        painter.drawLine(0, y, viewport()->width(), y);
    }
}

void FilesTableView::keyPressEvent(QKeyEvent* event) {
    const qsizetype row = selectedRow_;
    switch (event->key()) {
        case Qt::Key_Up:
            selectRow(row < 0 ? numberOfRows() - 1 : row - 1);
            break;
        case Qt::Key_Down:
            selectRow(row + 1);
            break;
        case Qt::Key_PageUp:
            selectRow(row - rowsPerPage());
            break;
        case Qt::Key_PageDown:
            selectRow(row + rowsPerPage());
            break;
        case Qt::Key_Home:
            selectRow(0);
            break;
        case Qt::Key_End:
            selectRow(numberOfRows() - 1);
            break;
        case Qt::Key_Delete:
        case Qt::Key_Backspace:
            if (row >= 0) {
                fileCellDidRemoveFile(cellForRow(row), files_.at(row));
            }
            break;
        case Qt::Key_Space:
            if (FileCell* cell = row >= 0 ? cellForRow(row) : nullptr;
                cell != nullptr && cell->selectFormatPopupButton()->isVisibleTo(cell)) {
                cell->selectFormatPopupButton()->showPopup();
            }
            break;
        default:
            QAbstractScrollArea::keyPressEvent(event);
            return;
    }
    event->accept();
}

void FilesTableView::mousePressEvent(QMouseEvent* event) {
    setFocus(Qt::MouseFocusReason);
    const qsizetype row = rowAt(event->position().toPoint().y());
    if (row < numberOfRows()) {
        selectRow(row);
    }
}
