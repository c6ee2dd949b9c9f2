#include "model/Folder.h"

#include "model/ConvenienceMethods.h"
#include "model/ValidObjects.h"

namespace {

// Unlike the other numbers of an item, an unusable parent doesn't read as 0: folder 0 could
// be a real parent, so anything but a number means "no parent".
qint32 parentIDFrom(const QJsonValue& parent) {
    if (ConvenienceMethods::isNumber(parent) || ConvenienceMethods::isValidNumber(parent)) {
        return ValidObjects::intValue(parent);
    }
    return -1;
}

}  // namespace

FolderPtr Folder::fromJson(const QJsonObject& item) {
    auto folder = std::make_shared<Folder>();
    folder->ID = ValidObjects::intForKey(item, QStringLiteral("id"));
    folder->name = ValidObjects::stringForKey(item, QStringLiteral("name"));
    folder->parentID = parentIDFrom(item.value(QStringLiteral("parent")));
    return folder;
}
