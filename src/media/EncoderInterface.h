#pragma once

#include "model/File.h"

// What the job manager asks of an encoder.
class EncoderInterface {
public:
    virtual ~EncoderInterface() = default;

    virtual void encodeFile(const FilePtr& file) = 0;
    // Blocks for one probe; callers run it on a thread of its own.
    virtual void loadVideoDetailsForFile(const FilePtr& file) = 0;
    virtual void encodeFiles(const FileList& files) = 0;
    virtual void stopEncoding() = 0;
};
