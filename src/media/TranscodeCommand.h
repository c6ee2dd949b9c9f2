#pragma once

#include <QString>
#include <QStringList>

#include "model/File.h"

// The ffmpeg command line for one file: H.264 + AAC in MP4 with the index at the front,
// scaled to the chosen width and deinterlaced.
class TranscodeCommand {
public:
    // Encoder for argument 22. Builds without "libvo_aacenc" get ffmpeg's native "aac". Asked
    // once per helper build.
    static QString audioEncoderFor(const QString& helperPath);
    // Whether ffmpeg's encoder list names the encoder (a pure reading of `ffmpeg -encoders`).
    static bool encoderListHas(const QByteArray& encoderList, const QString& encoder);

    // "clip01.mp4", or "clip01_proxy.mp4" when the original is kept beside the encode.
    static QString outputName(const File& file);
    static QString scaleFilter(int widthToEncode);
    static QStringList arguments(const File& file, const QString& outputPath, const QString& audioEncoder);
};
