#pragma once

#include "model/Folder.h"

// Puts a project's folders, which the service sends flat, into the order a tree is shown in:
// each folder right below its parent, followed by its whole subtree, with its depthIndex set.
class FolderTree {
public:
    // A cycle of parents can't be placed at all, and a chain of parents listed child-first
    // takes one pass per level; past this many passes the rest is given up.
    static constexpr int kMaxPasses = 1000;

    // Folders whose parent never turns up (missing, or in a cycle) are left out. Children
    // placed in one pass end up in the reverse of the given order.
    static FolderList ordered(const FolderList& folders);

    // Index of the first folder with that ID; -1 when there is none.
    static qint32 indexOfParentFolder(qint32 parentID, const FolderList& folders);
};
