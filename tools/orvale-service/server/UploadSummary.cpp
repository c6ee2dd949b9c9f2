#include "server/UploadSummary.h"

#include <QJsonArray>

namespace orvale_service {

NamedValues UploadSummary::fields() const {
    NamedValues result;
    for (const UploadPart& part : parts) {
        if (!part.isFile) {
            result.append({part.name, part.value});
        }
    }
    return result;
}

QList<UploadPart> UploadSummary::files() const {
    QList<UploadPart> result;
    for (const UploadPart& part : parts) {
        if (part.isFile) {
            result.append(part);
        }
    }
    return result;
}

QJsonObject UploadSummary::toJson() const {
    QJsonArray fieldList;
    for (const NamedValue& field : fields()) {
        fieldList.append(QJsonObject{{"name", field.name}, {"value", field.value}});
    }
    QJsonArray fileList;
    for (const UploadPart& file : files()) {
        fileList.append(QJsonObject{{"field", file.name},
                                    {"filename", file.fileName},
                                    {"content_type", file.contentType},
                                    {"size", file.size},
                                    {"stored", file.storedPath},
                                    {"complete", file.complete}});
    }
    return {{"boundary", boundary},  {"framing_ok", framingOk},     {"framing_error", framingError},
            {"length_ok", lengthOk}, {"length_error", lengthError}, {"fields", fieldList},
            {"files", fileList}};
}

}  // namespace orvale_service
