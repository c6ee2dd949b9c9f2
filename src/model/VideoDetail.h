#pragma once

#include <QString>
#include <QUrl>
#include <memory>

// What probing found out about a file, what the user chose for it, and what the encoder made.
// Durations are milliseconds.
struct VideoDetail {
    double duration = 0;
    double width = 0;
    double height = 0;

    qint32 widthToEncode = 0;
    QString minBitrate;
    QString maxBitrate;
    bool doNotEncode = false;
    bool preserveOriginal = false;

    QUrl encodedVideoUrl;
    double encodedSize = 0;
    bool encodeSuccess = false;
};

using VideoDetailPtr = std::shared_ptr<VideoDetail>;
