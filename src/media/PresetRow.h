#pragma once

#include <QJsonObject>
#include <QString>

// One choice of target frame size offered for a video. Bitrates are in the transcoder's
// notation ("2000k"). The "Do Not Encode" row has width and height 0 and no bitrates.
struct PresetRow {
    int width = 0;
    int height = 0;
    QString sizeDescription;
    QString minBitrate;
    QString maxBitrate;

    bool isDoNotEncode() const { return width == 0; }

    // The dictionary form; the bitrate keys are left out when they have no value.
    QJsonObject toJson() const;

    bool operator==(const PresetRow& other) const = default;
};
