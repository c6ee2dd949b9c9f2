#pragma once

#include <QStringList>
#include <QUrl>

// Where the drop area hands what was dropped. Optional: the defaults do nothing.
class DragAndDropDestinationViewDelegate {
public:
    virtual ~DragAndDropDestinationViewDelegate() = default;

    // Local paths of the dropped files and folders, in the order the source gave them.
    virtual void dragAndDropFiles(const QStringList& paths) { (void)paths; }
    // URL mode: the one dropped URL.
    virtual void dragAndDropFileURL(const QUrl& url) { (void)url; }
};
