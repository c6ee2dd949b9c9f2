#include "model/CatalogueTexts.h"

#include <QtGlobal>

QString CatalogueTexts::indentation(qint32 depthIndex) {
    return QString(2 * qMax(0, depthIndex), QLatin1Char(' '));
}

QString CatalogueTexts::folderRow(const Folder& folder) {
    return indentation(folder.depthIndex) + folder.name;
}
