#pragma once

#include <QString>
#include <QStringList>

#include "model/File.h"

// The ffmpeg command line for one file: H.264 + AAC in MP4 with the index at the front,
// scaled to the chosen width and deinterlaced.
class TranscodeCommand {
public:
    struct AudioEncoder {
        QString name;
        // Builds whose native "aac" is still marked experimental take it only with
        // "-strict experimental".
        bool experimental = false;
    };

    // Encoder for argument 22: "libvo_aacenc" where the build has it, else ffmpeg's native
    // "aac". Asked once per helper build; a question the helper fails to answer is asked again
    // next time, and meanwhile "aac" goes with "-strict experimental", which every build with a
    // native AAC encoder takes.
    static AudioEncoder audioEncoderFor(const QString& helperPath);
    // What `ffmpeg -encoders` says, read: its flags mark experimental encoders with an X.
    static AudioEncoder audioEncoderInList(const QByteArray& encoderList);

    // "clip01.mp4", or "clip01_proxy.mp4" when the original is kept beside the encode.
    static QString outputName(const File& file);
    static QString scaleFilter(int widthToEncode);
    static QStringList arguments(const File& file, const QString& outputPath,
                                 const AudioEncoder& audioEncoder);
};
