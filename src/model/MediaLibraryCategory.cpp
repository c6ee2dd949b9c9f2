#include "model/MediaLibraryCategory.h"

#include "model/ValidObjects.h"

MediaLibraryCategoryPtr MediaLibraryCategory::fromJson(const QJsonObject& item) {
    auto category = std::make_shared<MediaLibraryCategory>();
    category->ID = ValidObjects::intForKey(item, QStringLiteral("id"));
    category->name = ValidObjects::stringForKey(item, QStringLiteral("name"));
    category->status = ValidObjects::stringForKey(item, QStringLiteral("status"));
    return category;
}
