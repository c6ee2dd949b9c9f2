#include "media/ProbePool.h"

#include <QThread>
#include <algorithm>

#include "media/TranscodeCommand.h"

int ProbePool::defaultThreadCount() { return std::clamp(4 * QThread::idealThreadCount(), 4, 16); }

ProbePool::ProbePool(Encoder& encoder, int threadCount) : encoder_(encoder) {
    pool_.setMaxThreadCount(threadCount);
}

ProbePool::~ProbePool() { stop(); }

void ProbePool::probe(const FilePtr& file) {
    if (!askedAhead_) {
        askedAhead_ = true;
        pool_.start([] {
            const QString helper = Encoder::helperPath(QStringLiteral("ffmpeg"));
            if (!helper.isEmpty()) {
                TranscodeCommand::audioEncoderFor(helper);
            }
        });
    }
    pool_.start([encoder = &encoder_, file] { encoder->loadVideoDetailsForFile(file); });
}

void ProbePool::stop() {
    encoder_.abandonProbes();
    pool_.clear();
    pool_.waitForDone();
}
