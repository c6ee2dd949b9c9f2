#include "media/PresetRow.h"

QJsonObject PresetRow::toJson() const {
    QJsonObject json{
        {QStringLiteral("width"), width},
        {QStringLiteral("height"), height},
        {QStringLiteral("sizeDescription"), sizeDescription},
    };
    if (!minBitrate.isEmpty()) {
        json.insert(QStringLiteral("minBitrate"), minBitrate);
    }
    if (!maxBitrate.isEmpty()) {
        json.insert(QStringLiteral("maxBitrate"), maxBitrate);
    }
    return json;
}
