#pragma once

#include <QJsonObject>
#include <QList>
#include <QMetaType>
#include <QString>
#include <memory>

// A folder inside a project on the service. Shared by identity: lists compare pointers.
struct Folder {
    using Ptr = std::shared_ptr<Folder>;

    Folder() = default;
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    // An item of the service's "project_category" list: "id", "name" and "parent". A parent
    // that is neither a number nor a numeric text makes a top-level folder.
    static Ptr fromJson(const QJsonObject& item);

    bool isTopLevel() const { return parentID < 0; }

    qint32 ID = 0;
    QString name;
    // Any negative value marks a top-level folder.
    qint32 parentID = 0;
    // Indentation when shown as a tree; set when the folder list is ordered.
    qint32 depthIndex = 0;
};

using FolderPtr = Folder::Ptr;
using FolderList = QList<FolderPtr>;

Q_DECLARE_METATYPE(FolderPtr)
