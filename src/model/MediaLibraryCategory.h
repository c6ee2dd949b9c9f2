#pragma once

#include <QJsonObject>
#include <QList>
#include <QMetaType>
#include <QString>
#include <memory>

// A media-library category (media type) on the service. Shared by identity.
struct MediaLibraryCategory {
    using Ptr = std::shared_ptr<MediaLibraryCategory>;

    MediaLibraryCategory() = default;
    MediaLibraryCategory(const MediaLibraryCategory&) = delete;
    MediaLibraryCategory& operator=(const MediaLibraryCategory&) = delete;

    // An item of the service's "media_type" list: "id", "name" and "status".
    static Ptr fromJson(const QJsonObject& item);

    qint32 ID = 0;
    QString name;
    // As the service sends it.
    QString status;
};

using MediaLibraryCategoryPtr = MediaLibraryCategory::Ptr;
using MediaLibraryCategoryList = QList<MediaLibraryCategoryPtr>;

Q_DECLARE_METATYPE(MediaLibraryCategoryPtr)
