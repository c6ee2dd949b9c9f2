#pragma once

#include "model/File.h"

// Reports of the encoder, all delivered on the main thread. Every report is optional: the
// defaults do nothing.
class EncoderDelegate {
public:
    virtual ~EncoderDelegate() = default;

    virtual void didFinishLoadingDetailsForFile(const FilePtr& file) { (void)file; }
    // A file's transcode begins (also one that fails at once).
    virtual void didStartEncodingFile(const FilePtr& file) { (void)file; }
    virtual void didChangeEncodedState(double milliseconds) { (void)milliseconds; }
    virtual void didFinishEncodingVideo(const FilePtr& file, bool isLastVideo) {
        (void)file;
        (void)isLastVideo;
    }
    virtual void didRanOutOfSpaceOnDisk() {}
    virtual void didOccureProblemWhileEncodingFile(const FilePtr& file, bool isLastVideo) {
        (void)file;
        (void)isLastVideo;
    }
};
