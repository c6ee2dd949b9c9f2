#include "jobs/FolderTree.h"

namespace {

// Places what it can of `remaining` into `result`, each right after its parent; returns the
// folders still waiting, in their order.
FolderList placeChildren(const FolderList& remaining, FolderList& result) {
    FolderList waiting;
    for (const FolderPtr& folder : remaining) {
        const qint32 parentIndex = FolderTree::indexOfParentFolder(folder->parentID, result);
        if (parentIndex < 0) {
            waiting.append(folder);
            continue;
        }
        folder->depthIndex = result.at(parentIndex)->depthIndex + 1;
        result.insert(parentIndex + 1, folder);
    }
    return waiting;
}

}  // namespace

FolderList FolderTree::ordered(const FolderList& folders) {
    FolderList result;
    FolderList remaining;
    for (const FolderPtr& folder : folders) {
        if (folder->isTopLevel()) {
            folder->depthIndex = 0;
            result.append(folder);
        } else {
            remaining.append(folder);
        }
    }
    for (int pass = 0; !remaining.isEmpty() && pass < kMaxPasses; ++pass) {
        FolderList waiting = placeChildren(remaining, result);
        if (waiting.size() == remaining.size()) {
            break;  // nothing moved, so no later pass could place anything either
        }
        remaining = std::move(waiting);
    }
    return result;
}

qint32 FolderTree::indexOfParentFolder(qint32 parentID, const FolderList& folders) {
    for (qsizetype i = 0; i < folders.size(); ++i) {
        if (folders.at(i)->ID == parentID) {
            return static_cast<qint32>(i);
        }
    }
    return -1;
}
