#include <gtest/gtest.h>

#include "jobs/DataManager.h"
#include "jobs/FolderTree.h"

namespace {

struct Row {
    QString name;
    qint32 id;
    qint32 parent;
};

FolderList foldersOf(const QList<Row>& rows) {
    FolderList folders;
    for (const Row& row : rows) {
        auto folder = std::make_shared<Folder>();
        folder->name = row.name;
        folder->ID = row.id;
        folder->parentID = row.parent;
        folders.append(folder);
    }
    return folders;
}

// "name:depth" per folder, in order.
QStringList shapeOf(const FolderList& folders) {
    QStringList shape;
    for (const FolderPtr& folder : folders) {
        shape << folder->name + ':' + QString::number(folder->depthIndex);
    }
    return shape;
}

}  // namespace

TEST(FolderTree, EachFolderFollowsItsParentWithItsWholeSubtree) {
    struct Case {
        const char* what;
        QList<Row> rows;
        QStringList expected;
    };
    const QList<Case> cases = {
        {"children of one pass stand in reverse order",
         {{"A", 1, -1}, {"B", 2, -1}, {"C", 3, 1}, {"D", 4, 1}, {"E", 5, 3}},
         {"A:0", "D:1", "C:1", "E:2", "B:0"}},
        {"any negative parent is top level", {{"T", 1, -7}, {"U", 2, 1}}, {"T:0", "U:1"}},
        {"a child placed in a later pass stands before siblings placed earlier",
         {{"A", 1, -1}, {"late", 5, 2}, {"B", 2, 1}, {"early", 6, 2}},
         {"A:0", "B:1", "late:2", "early:2"}},
        {"a missing parent leaves its subtree out",
         {{"A", 1, -1}, {"orphan", 2, 99}, {"orphan's child", 3, 2}, {"B", 4, 1}},
         {"A:0", "B:1"}},
        {"parents in a cycle are left out",
         {{"A", 1, -1}, {"one", 2, 3}, {"two", 3, 2}, {"self", 4, 4}},
         {"A:0"}},
        {"no top-level folder gives nothing", {{"P", 1, 2}, {"Q", 2, 1}, {"R", 3, 9}}, {}},
        {"nothing in, nothing out", {}, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(shapeOf(FolderTree::ordered(foldersOf(c.rows))), c.expected);
    }
}

TEST(FolderTree, AChainListedChildFirstIsCutOffAfterAThousandPasses) {
    // Each pass can place only the next level: the list names every folder before its parent.
    QList<Row> rows;
    const int levels = FolderTree::kMaxPasses + 5;
    for (int depth = levels; depth >= 1; --depth) {
        rows.append({QString::number(depth), depth, depth - 1});
    }
    rows.append({"root", 0, -1});
    const FolderList ordered = FolderTree::ordered(foldersOf(rows));
    ASSERT_EQ(ordered.size(), FolderTree::kMaxPasses + 1);
    EXPECT_EQ(ordered.last()->depthIndex, FolderTree::kMaxPasses);
    EXPECT_EQ(ordered.last()->ID, FolderTree::kMaxPasses);
}

TEST(FolderTree, TheParentIsTheFirstFolderWithItsId) {
    const FolderList folders = foldersOf({{"x", 5, -1}, {"first", 7, -1}, {"second", 7, -1}});
    EXPECT_EQ(DataManager::indexOfParentFolder(7, folders), 1);
    EXPECT_EQ(DataManager::indexOfParentFolder(6, folders), -1);
}
