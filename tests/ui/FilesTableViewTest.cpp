#include <gtest/gtest.h>

#include <QLabel>
#include <QMimeData>
#include <QTest>

#include "model/FileRowLayout.h"
#include "support/DropEvents.h"
#include "support/VideoFile.h"
#include "ui/controls/ButtonWithImage.h"
#include "ui/files/DragAndDropDestinationView.h"
#include "ui/files/DragAndDropDestinationViewDelegate.h"
#include "ui/files/FileCell.h"
#include "ui/files/FilesTableView.h"
#include "ui/files/FilesTableViewDelegate.h"

namespace {

FilePtr video(const QString& name) { return videoFile("/clips/" + name, 1280, 720, 90000); }

class Files : public testing::Test, public FilesTableViewDelegate {
protected:
    Files() {
        table.resize(600, 300);
        table.setComponentDelegate(this);
        table.show();
    }

    void didRemoveFile(const FilePtr& file) override { removed.append(file); }

    void choose(FileCell* cell, int index) {
        cell->selectFormatPopupButton()->setCurrentIndex(index);
        emit cell->selectFormatPopupButton()->activated(index);
    }

    FilesTableView table;
    FileList removed;
};

}  // namespace

TEST_F(Files, AFreshRowTakesTheFirstSizeAndAChosenSizeSurvivesRedraws) {
    const FilePtr clip = video(QStringLiteral("clip.mov"));
    table.addFile(clip);
    FileCell* cell = table.cellForRow(0);
    ASSERT_NE(cell, nullptr);
    // The sizes offered and their bitrates are the encoder's tables' to show.
    EXPECT_EQ(cell->selectFormatPopupButton()->currentText(), "1280x720");
    EXPECT_EQ(clip->videoDetail->widthToEncode, 1280);
    EXPECT_EQ(cell->detailLabel()->text(), "1:30 · 1280x720");
    EXPECT_EQ(cell->sizeBandLabel()->text(), "≈ 23-38 MB");

    choose(cell, 2);
    EXPECT_EQ(clip->videoDetail->widthToEncode, 960);
    table.reloadData();
    EXPECT_EQ(table.cellForRow(0)->selectFormatPopupButton()->currentText(), "960x540");

    table.setHasDoNotEncode(true);
    cell = table.cellForRow(0);
    ASSERT_EQ(cell->selectFormatPopupButton()->itemText(6), "Do Not Encode");
    choose(cell, 6);
    EXPECT_TRUE(clip->videoDetail->doNotEncode);
    EXPECT_EQ(clip->videoDetail->widthToEncode, 0);
    table.reloadData();
    EXPECT_EQ(table.cellForRow(0)->selectFormatPopupButton()->currentText(), "Do Not Encode");
}

TEST_F(Files, FiveHundredFilesMakeRowsOnlyForWhatIsInSight) {
    FileList files;
    for (int i = 0; i < 500; ++i) {
        files.append(video(QStringLiteral("clip %1.mov").arg(i)));
    }
    table.setFiles(files);
    const qsizetype inSight = table.visibleCells().size();
    EXPECT_EQ(inSight, 300 / static_cast<int>(FileRowLayout::kRowHeight));
    // Rows never shown are configured all the same.
    EXPECT_EQ(files.last()->videoDetail->widthToEncode, 1280);

    table.setFocus();
    QTest::keyClick(&table, Qt::Key_End);
    ASSERT_NE(table.cellForRow(499), nullptr);
    EXPECT_EQ(table.cellForRow(499)->file(), files.last());
    EXPECT_TRUE(table.cellForRow(499)->isSelected());
    EXPECT_EQ(table.cellForRow(0), nullptr);
    EXPECT_LE(table.visibleCells().size() + table.reusableCellCount(), inSight + 1);
}

TEST_F(Files, TheKeyboardMovesTheSelectionAndRemovesRowsAsTheButtonDoes) {
    const FileList files{video("a.mov"), video("b.mov"), video("c.mov")};
    table.setFiles(files);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&table));
    table.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&table));
    QTest::mouseClick(table.cellForRow(1)->filenameLabel(), Qt::LeftButton);
    EXPECT_EQ(table.selectedRow(), 1);
    EXPECT_TRUE(table.hasFocus());
    QTest::keyClick(&table, Qt::Key_Up);
    EXPECT_EQ(table.selectedRow(), 0);
    QTest::keyClick(&table, Qt::Key_Delete);
    EXPECT_EQ(removed, FileList{files.at(0)});
    EXPECT_EQ(table.selectedRow(), 0);
    QTest::keyClick(&table, Qt::Key_Backspace);
    EXPECT_EQ(table.files(), FileList{files.at(2)});

    QTest::mouseClick(table.cellForRow(0)->removeButton(), Qt::LeftButton);
    EXPECT_TRUE(table.files().isEmpty());
    EXPECT_EQ(removed, files);
    EXPECT_EQ(table.selectedRow(), -1);
    EXPECT_TRUE(table.visibleCells().isEmpty());
}

namespace {

struct Drops : DragAndDropDestinationViewDelegate {
    void dragAndDropFiles(const QStringList& dropped) override { paths.append(dropped); }
    void dragAndDropFileURL(const QUrl& url) override { urls.append(url); }
    QList<QStringList> paths;
    QList<QUrl> urls;
};

}  // namespace

TEST(DragAndDropDestinationView, HandsDroppedFilesOnAsLocalPaths) {
    DragAndDropDestinationView view;
    Drops delegate;
    view.setDelegate(&delegate);
    view.acceptDragAndDrop();

    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(QStringLiteral("/clips/a b.mov")),
                   QUrl(QStringLiteral("http://127.0.0.1/c.mov")),
                   QUrl::fromLocalFile(QStringLiteral("/clips/folder"))});
    EXPECT_FALSE(view.canTake(&files, Qt::MoveAction));
    EXPECT_TRUE(dropOn(view, files));
    EXPECT_EQ(delegate.paths, (QList<QStringList>{{"/clips/a b.mov", "/clips/folder"}}));

    // Addresses but no files: the drop is taken and nothing is passed on.
    QMimeData addresses;
    addresses.setUrls({QUrl(QStringLiteral("http://127.0.0.1/c.mov"))});
    EXPECT_TRUE(dropOn(view, addresses));
    QMimeData words;
    words.setText(QStringLiteral("/clips/a.mov"));
    EXPECT_FALSE(dropOn(view, words));
    EXPECT_EQ(delegate.paths.size(), 1);

    view.setUseURLPasteboard(true);
    EXPECT_TRUE(dropOn(view, files));
    EXPECT_EQ(delegate.urls, QList<QUrl>{QUrl::fromLocalFile(QStringLiteral("/clips/a b.mov"))});
}
