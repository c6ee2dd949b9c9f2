#pragma once

#include "model/File.h"

// What the file list tells the screen it sits in. Optional: the default does nothing.
class FilesTableViewDelegate {
public:
    virtual ~FilesTableViewDelegate() = default;

    // A row was removed; the file is no longer in the list.
    virtual void didRemoveFile(const FilePtr& file) { (void)file; }
};
