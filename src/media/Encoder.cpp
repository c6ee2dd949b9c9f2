#include "media/Encoder.h"

#include <QFileInfo>
#include <QSet>
#include <QTimer>
#include <mutex>

#include "media/TranscodeCommand.h"
#include "media/VideoProbe.h"
#include "platform/HelperLocator.h"
#include "platform/HelperProcess.h"
#include "platform/Log.h"
#include "platform/SystemVersion.h"
#include "platform/WorkFolder.h"

namespace {

void warnMissingHelperOnce(const QString& name) {
    static std::mutex mutex;
    static QSet<QString> warned;
    std::lock_guard<std::mutex> guard(mutex);
    if (warned.contains(name)) {
        return;
    }
    warned.insert(name);
    LOG_WARNING("The helper {} was not found; looked in: {}", name,
                HelperLocator::searchedLocations(name).join(QStringLiteral(", ")));
}

}  // namespace

Encoder::Encoder(QObject* parent) : QObject(parent) {}

Encoder::~Encoder() = default;

QString Encoder::helperPath(const QString& baseName) {
    const QString name = SystemVersion::helperName(baseName, SystemVersion::productVersion());
    const QString path = HelperLocator::locate(name);
    if (path.isEmpty()) {
        warnMissingHelperOnce(name);
    }
    return path;
}

void Encoder::loadVideoDetailsForFile(const FilePtr& file) {
    QByteArray answer;
    const QString helper = helperPath(QStringLiteral("ffprobe"));
    if (!helper.isEmpty() && !probesAbandoned_) {
        const bool legacyOption = VideoProbe::acceptsShowFormatEntry(helper);
        answer = VideoProbe::run(helper, VideoProbe::arguments(file->path(), legacyOption),
                                 probesAbandoned_);
    }
    if (probesAbandoned_) {
        return;
    }
    VideoProbe::applyAnswer(answer, *file);
    LOG_VERBOSE("File: {}, Size: {:f}, IsVideo: {:d}", file->fileName(), file->size,
                file->isVideo ? 1 : 0);
    LOG_VERBOSE("FFprobe response: {}", QString::fromUtf8(answer));
    // Last: once the report is out, the process may be on its way out (orvale-cli probe).
    reportDetailsLoaded(file);
}

void Encoder::reportDetailsLoaded(const FilePtr& file) {
    // Queued after the last write to the file, so the main thread sees the finished record.
    QPointer<Encoder> self(this);
    QMetaObject::invokeMethod(
        this,
        [self, file] {
            if (self && self->delegate_ != nullptr) {
                self->delegate_->didFinishLoadingDetailsForFile(file);
            }
        },
        Qt::QueuedConnection);
}

void Encoder::encodeFiles(const FileList& files) {
    encodeQueue_ = files;
    if (!encodeQueue_.isEmpty()) {
        encodeFile(encodeQueue_.first());
    }
}

void Encoder::encodeFile(const FilePtr& file) {
    const QString outputName = TranscodeCommand::outputName(*file);
    const QString outputPath = WorkFolder::current().newEncodePath(outputName);
    file->videoDetail->encodedVideoUrl = QUrl::fromLocalFile(outputPath);
    if (file->videoDetail->preserveOriginal) {
        LOG_VERBOSE("Preserving original, proxyfile {}", outputName);
    }
    currentState_ = 0;
    progress_.reset();
    LOG_VERBOSE("Encoding: {}, size: {:f}", file->fileName(), file->size);
    if (delegate_ != nullptr) {
        delegate_->didStartEncodingFile(file);
    }

    const QString helper = helperPath(QStringLiteral("ffmpeg"));
    if (helper.isEmpty() || outputPath.isEmpty()) {
        failSoon();
        return;
    }
    encoderTask_ = new QProcess(this);
    encoderTask_->setProcessChannelMode(QProcess::MergedChannels);
    HelperProcess::prepare(*encoderTask_);
    connect(encoderTask_, &QProcess::readyReadStandardOutput, this, &Encoder::onOutput);
    connect(encoderTask_, &QProcess::finished, this, &Encoder::onProcessEnded);
    connect(encoderTask_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            onProcessEnded();
        }
    });
    encoderTask_->start(helper, TranscodeCommand::arguments(
                                    *file, outputPath, TranscodeCommand::audioEncoderFor(helper)));
}

void Encoder::failSoon() {
    // Nothing to run: the file ends at once, short of its duration, as a failed encode would.
    QTimer::singleShot(0, this, [this, generation = runGeneration_] {
        if (generation == runGeneration_ && encoderTask_ == nullptr && !encodeQueue_.isEmpty()) {
            finishFile();
        }
    });
}

void Encoder::onOutput() {
    if (encoderTask_ == nullptr || !encoderTask_->isOpen()) {
        return;
    }
    const QByteArray chunk = encoderTask_->readAllStandardOutput();
    LOG_VERBOSE("{}", QString::fromUtf8(chunk));
    const ProgressParser::Result result = progress_.parse(chunk);
    if (result.outOfSpace) {
        if (delegate_ != nullptr) {
            delegate_->didRanOutOfSpaceOnDisk();
        }
        stopEncoding();
        return;
    }
    if (result.milliseconds) {
        currentState_ = *result.milliseconds;
        if (delegate_ != nullptr) {
            delegate_->didChangeEncodedState(currentState_);
        }
    }
}

void Encoder::onProcessEnded() {
    if (encoderTask_ == nullptr) {
        return;
    }
    onOutput();  // whatever was still in the pipe
    if (encoderTask_ == nullptr) {
        return;  // the last words were "No space left on device"
    }
    detachTask();
    finishFile();
}

void Encoder::detachTask() {
    encoderTask_->disconnect(this);
    encoderTask_->deleteLater();
    encoderTask_ = nullptr;
}

void Encoder::finishFile() {
    const FilePtr file = encodeQueue_.takeFirst();
    const bool isLastVideo = encodeQueue_.isEmpty();
    const quint64 generation = runGeneration_;
    const double duration = file->videoDetail->duration;
    if (duration * 90 / 100 > currentState_) {
        LOG_VERBOSE("Ooops: file: {}, duration: {:f}", file->fileName(), duration);
        file->videoDetail->encodeSuccess = false;
        if (delegate_ != nullptr) {
            delegate_->didOccureProblemWhileEncodingFile(file, isLastVideo);
        }
    } else {
        const QFileInfo output(file->videoDetail->encodedVideoUrl.toLocalFile());
        file->videoDetail->encodedSize = output.exists() ? static_cast<double>(output.size()) : 0.0;
        file->videoDetail->encodeSuccess = true;
        if (delegate_ != nullptr) {
            delegate_->didFinishEncodingVideo(file, isLastVideo);
        }
    }
    // A delegate that stopped the run from its report gets no further file.
    if (generation == runGeneration_ && !encodeQueue_.isEmpty() && encoderTask_ == nullptr) {
        encodeFile(encodeQueue_.first());
    }
}

void Encoder::stopEncoding() {
    ++runGeneration_;
    if (encoderTask_ == nullptr) {
        return;
    }
    QProcess* task = encoderTask_;
    task->disconnect(this);
    encoderTask_ = nullptr;
    stoppingTasks_.append(task);
    connect(task, &QProcess::finished, task, &QObject::deleteLater);
    connect(task, &QProcess::finished, this, &Encoder::reportStoppedIfSo, Qt::QueuedConnection);
    task->terminate();
    // ffmpeg finishes its output on SIGTERM; one that hangs is killed.
    QTimer::singleShot(5000, task, [task] { task->kill(); });
}

void Encoder::whenStopped(std::function<void()> callback) {
    stoppedCallbacks_.append(std::move(callback));
    QTimer::singleShot(0, this, &Encoder::reportStoppedIfSo);
}

void Encoder::reportStoppedIfSo() {
    stoppingTasks_.removeIf([](const QPointer<QProcess>& task) {
        return !task || task->state() == QProcess::NotRunning;
    });
    if (!stoppingTasks_.isEmpty()) {
        return;
    }
    for (const std::function<void()>& callback : std::exchange(stoppedCallbacks_, {})) {
        callback();
    }
}

void Encoder::waitUntilStopped(int milliseconds) {
    for (const QPointer<QProcess>& task : std::as_const(stoppingTasks_)) {
        if (task && task->state() != QProcess::NotRunning && !task->waitForFinished(milliseconds)) {
            task->kill();
            task->waitForFinished(milliseconds);
        }
    }
    stoppingTasks_.clear();
    reportStoppedIfSo();
}
