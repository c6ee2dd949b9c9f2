#pragma once

#include <QThreadPool>

#include "media/Encoder.h"

// Runs the encoder's probes off the main thread, a few at a time. A folder of a thousand clips
// dropped at once queues a thousand probes, of which threadCount() run at any moment; each
// reports on the main thread as it ends, as a probe on a thread of its own would.
//
// The first probe also asks ffmpeg which AAC encoder it has, beside it, so that the answer is
// ready when the first encode starts.
//
// Stopping (or destroying) the pool drops the probes still waiting, kills the helpers of those
// running, and waits for its threads: nothing of the pool touches the encoder afterwards. The
// encoder must outlive the pool.
class ProbePool {
public:
    // Four per core, at most sixteen: a probe spends much of its short life starting ffprobe
    // and waiting for it, and more at once only cost memory.
    static int defaultThreadCount();

    explicit ProbePool(Encoder& encoder, int threadCount = defaultThreadCount());
    ~ProbePool();
    ProbePool(const ProbePool&) = delete;
    ProbePool& operator=(const ProbePool&) = delete;

    void probe(const FilePtr& file);
    void stop();

    int threadCount() const { return pool_.maxThreadCount(); }

private:
    Encoder& encoder_;
    QThreadPool pool_;
    bool askedAhead_ = false;
};
