#pragma once

#include <QAbstractScrollArea>
#include <QHash>
#include <QList>

#include "model/File.h"
#include "ui/files/FileCellDelegate.h"

class FileCell;
class FilesTableViewDelegate;

// The list of files, one column of rows of equal height. Only the rows in sight have widgets:
// rows scrolled away go to the reuse store under their identifier and come back for the next
// rows shown, so hundreds of files cost no more than a screenful. Each row is given its file
// again whenever it is shown or the list reloads, and reads the file's choice back from it.
//
// Files are configured as they are added: a video gets the size its row would select (the
// first one offered when nothing is chosen), whether its row has been in sight or not.
//
// The list takes the keyboard: Up and Down (Home, End, Page Up, Page Down) move the selected
// row, Delete or Backspace removes it as its remove button does, Space opens its size popup.
class FilesTableView : public QAbstractScrollArea, public FileCellDelegate {
    Q_OBJECT

public:
    explicit FilesTableView(QWidget* parent = nullptr);
    ~FilesTableView() override;

    const FileList& files() const { return files_; }
    void addFile(const FilePtr& file);
    void setFiles(const FileList& files);
    qsizetype numberOfRows() const { return files_.size(); }

    FilesTableViewDelegate* componentDelegate() const { return componentDelegate_; }
    void setComponentDelegate(FilesTableViewDelegate* delegate) { componentDelegate_ = delegate; }
    bool hasDoNotEncode() const { return hasDoNotEncode_; }
    void setHasDoNotEncode(bool on);
    bool hasPreserveOriginal() const { return hasPreserveOriginal_; }
    void setHasPreserveOriginal(bool on);

    // Rows are laid out when the event loop next runs; these lay out first if needed.
    FileCell* cellForRow(qsizetype row);
    QList<FileCell*> visibleCells();
    qsizetype reusableCellCount() const;
    // Rows are shown again (each re-reads its file) once control returns to the event loop.
    void reloadData();

    qsizetype selectedRow() const { return selectedRow_; }
    void selectRow(qsizetype row);
    void scrollToRow(qsizetype row);

    // The row for a file: a recycled one or a new one, given the table's flags, the file and
    // the table as its delegate.
    FileCell* viewForRow(qsizetype row);
    FileCell* makeViewWithIdentifier(const QString& identifier);

    void fileCellDidRemoveFile(FileCell* cell, const FilePtr& file) override;
    void fileCellDidChangeChoice(FileCell* cell, const FilePtr& file) override;

signals:
    // Files were added or removed, or a row's choice changed.
    void filesChanged();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void configure(const FilePtr& file) const;
    void layoutIfNeeded();
    void layoutRows();
    void updateScrollBar();
    void recycle(FileCell* cell);
    qsizetype rowAt(int viewportY) const;
    int rowsPerPage() const;

    FileList files_;
    FilesTableViewDelegate* componentDelegate_ = nullptr;
    bool hasDoNotEncode_ = false;
    bool hasPreserveOriginal_ = false;
    qsizetype selectedRow_ = -1;

    QHash<qsizetype, FileCell*> visibleCells_;
    QHash<QString, QList<FileCell*>> reuseStore_;
    bool reloadPending_ = false;
};
