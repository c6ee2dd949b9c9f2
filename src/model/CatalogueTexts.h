#pragma once

#include <QString>

#include "model/Folder.h"

// How catalogue entries read wherever they are listed, in the window and in orvale-cli.
class CatalogueTexts {
public:
    // Two spaces per level of a folder tree.
    static QString indentation(qint32 depthIndex);
    // The folder's name under its parent, indented by its depth.
    static QString folderRow(const Folder& folder);
};
