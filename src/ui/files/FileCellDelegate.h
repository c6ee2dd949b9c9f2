#pragma once

#include "model/File.h"

class FileCell;

// What a row of the file list tells its table. Optional: the defaults do nothing.
class FileCellDelegate {
public:
    virtual ~FileCellDelegate() = default;

    // The row's remove button was pressed.
    virtual void fileCellDidRemoveFile(FileCell* cell, const FilePtr& file) {
        (void)cell;
        (void)file;
    }
    // The user chose another size or switched preserve-original; the file holds the choice.
    virtual void fileCellDidChangeChoice(FileCell* cell, const FilePtr& file) {
        (void)cell;
        (void)file;
    }
};
