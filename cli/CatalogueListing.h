#pragma once

#include <QList>
#include <QString>
#include <optional>

#include "model/Credit.h"
#include "model/Folder.h"
#include "model/MediaLibraryCategory.h"
#include "model/Project.h"

// How orvale-cli prints catalogue lists, in the order it is given them: one entry a line for
// people, or a JSON array of objects whose members keep a fixed order for scripts.
class CatalogueListing {
public:
    struct Entry {
        qint32 id = 0;
        QString name;
        std::optional<qint32> parentID;
        std::optional<qint32> depthIndex;
        std::optional<QString> status;
    };

    static QList<Entry> entries(const ProjectList& projects);
    static QList<Entry> entries(const FolderList& folders);
    static QList<Entry> entries(const MediaLibraryCategoryList& categories);
    static QList<Entry> entries(const CreditList& credits);

    // "name (id)" or "name (id, status)"; folders indented two spaces per level.
    static QString text(const QList<Entry>& entries);
    // Members "id", "name", then "parentID", "depthIndex", "status" where the entry has them.
    static QString json(const QList<Entry>& entries);

private:
    static QString jsonObject(const Entry& entry);
};
