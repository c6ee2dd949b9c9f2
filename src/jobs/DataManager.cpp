#include "jobs/DataManager.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include "jobs/NotificationNames.h"
#include "jobs/OutputFolder.h"
#include "platform/Log.h"
#include "platform/LogindPowerAssertion.h"
#include "platform/WorkFolder.h"

using namespace NotificationNames;

namespace {

const QString idleSleepAssertionName = QStringLiteral("Upload");

bool needsEncoding(const File& file) {
    return file.isVideo && file.videoDetail && !file.videoDetail->doNotEncode &&
           !file.videoDetail->encodeSuccess;
}

// Also the encode's folder, whether the encode is there or was moved away. One that is removed
// must be made again before the file can be handed on.
void removeEncodeOf(const FilePtr& file) {
    if (!file->videoDetail || file->videoDetail->encodedVideoUrl.isEmpty()) {
        return;
    }
    const QString path = file->videoDetail->encodedVideoUrl.toLocalFile();
    if (QFileInfo::exists(path)) {
        file->videoDetail->encodeSuccess = false;
    }
    WorkFolder::removeEncode(path);
}

}  // namespace

DataManager& DataManager::sharedInstance() {
    static DataManager instance(NotificationCenter::defaultCenter(),
                                LogindPowerAssertion::sharedInstance(),
                                UserDefaultsManager::sharedInstance());
    return instance;
}

DataManager::DataManager(NotificationCenter& center, PowerAssertion& powerAssertion,
                         UserDefaultsManager& userDefaultsManager, QObject* parent)
    : QObject(parent),
      center_(center),
      powerAssertion_(powerAssertion),
      userDefaultsManager_(userDefaultsManager) {
    setUpSession();
    encoder_ = std::make_unique<Encoder>();
    encoder_->setDelegate(this);
    probePool_ = std::make_unique<ProbePool>(*encoder_);
    if (QCoreApplication::instance() != nullptr) {
        // The shared instance outlives the application object; its probes must not.
        connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this,
                [this] { probePool_->stop(); });
    }
}

DataManager::DataManager(NotificationCenter& center, PowerAssertion& powerAssertion,
                         QObject* parent)
    : DataManager(center, powerAssertion, UserDefaultsManager::sharedInstance(), parent) {}

DataManager::~DataManager() {
    probePool_.reset();
    serverManager_->setDelegate(nullptr);
    encoder_->setDelegate(nullptr);
    releaseIdleSleepAssertion();
}

void DataManager::post(QLatin1String name, const QVariant& object) { center_.post(name, object); }

void DataManager::addVideoDetailsToFileIfNeeded(const FilePtr& file) { probePool_->probe(file); }

QString DataManager::startLocalEncodeForFiles(const FileList& files, const QUrl& outputDirectory) {
    LOG_VERBOSE("startLocalEncode");
    const QString outputFolder = outputDirectory.toLocalFile();
    const QString problem = OutputFolder::prepare(outputFolder);
    if (!problem.isEmpty()) {
        LOG_INFO("{}", problem);
        return problem;
    }
    beginJob(true);
    post(kNotificationIsLocalEncode);
    localEncodeOutputDirUrl_ = QUrl::fromLocalFile(outputFolder);
    resetJob(files);

    FileList encodeList;
    splitIntoEncodeListAndUploadQueue(files, encodeList);
    if (encodeList.isEmpty()) {
        // Nothing to wait for: hand the files on now, which also completes the job.
        uploadFilesFromQueue();
        return {};
    }
    startEncoding(encodeList);
    return {};
}

void DataManager::startEncoding(const FileList& encodeList) {
    encodeCount_ = static_cast<int>(encodeList.size());
    encodesStarted_ = 0;
    isEncoding_ = true;
    encoder_->encodeFiles(encodeList);
}

QString DataManager::retryFailedFiles() {
    if (isLocalEncode_) {
        return startLocalEncodeForFiles(failedFiles(), localEncodeOutputDirUrl_);
    }
    retryUploadForFailedFiles();
    return {};
}

void DataManager::beginJob(bool isLocalEncode) {
    takeIdleSleepAssertion();
    isEncoding_ = false;
    isUploading_ = false;
    isLocalEncode_ = isLocalEncode;
    jobRunning_ = true;
}

bool DataManager::endJob() {
    if (!jobRunning_) {
        return false;
    }
    jobRunning_ = false;
    // Before the end is posted: a listener may start the next job from there.
    releaseIdleSleepAssertion();
    return true;
}

void DataManager::splitIntoEncodeListAndUploadQueue(const FileList& files, FileList& encodeList) {
    for (const FilePtr& file : files) {
        totalBytesToWrite_ =
            static_cast<quint64>(static_cast<double>(totalBytesToWrite_) + file->size);
        if (needsEncoding(*file)) {
            encodeList.append(file);
            totalDuration_ += file->videoDetail->duration;
        } else {
            uploadQueue_.append(file);
        }
    }
}

void DataManager::resetJob(const FileList& files) {
    files_ = files;
    filesQueue_ = files;
    encodedVideosDuration_ = 0;
    bytesWritten_ = 0;
    totalDuration_ = 0;
    currentUploadPercent_ = 0;
    uploadMultiplier_ = 1.0f;
    totalBytesToWrite_ = 0;
    uploadQueue_.clear();
    encodeFailedFiles_.clear();
    uploadFailedFiles_.clear();
    uploadedFiles_.clear();
    movedTo_.clear();
    for (const FilePtr& file : files) {
        file->failureReason.clear();
    }
}

void DataManager::accountUploadSizes() {
    quint64 sourceBytes = 0;
    quint64 bytesToSend = 0;
    auto add = [](quint64 sum, double bytes) {
        return static_cast<quint64>(static_cast<double>(sum) + bytes);
    };
    for (const FilePtr& file : std::as_const(filesQueue_)) {
        sourceBytes = add(sourceBytes, file->size);
        if (!uploadQueue_.contains(file)) {
            bytesToSend = add(bytesToSend, file->size);
            continue;
        }
        const double encodedSize = file->videoDetail ? file->videoDetail->encodedSize : 0.0;
        if (file->videoDetail && file->videoDetail->preserveOriginal) {
            LOG_VERBOSE("Using both original and proxy files for size");
            bytesToSend = add(bytesToSend, file->size + encodedSize);
            totalBytesToWrite_ = add(totalBytesToWrite_, encodedSize);
        } else {
            bytesToSend = add(bytesToSend, encodedSize);
        }
    }
    uploadMultiplier_ =
        static_cast<float>(static_cast<double>(sourceBytes) / static_cast<double>(bytesToSend));
}

void DataManager::uploadFilesFromQueue() {
    LOG_VERBOSE("upload files from queue, count: {}", uploadQueue_.size());
    accountUploadSizes();
    if (!isLocalEncode_) {
        sendToService(uploadQueue_);
        return;
    }
    for (const FilePtr& file : std::as_const(uploadQueue_)) {
        moveToOutputFolder(file);
    }
    for (const FilePtr& file : std::as_const(uploadQueue_)) {
        filesQueue_.removeAll(file);
    }
    uploadQueue_.clear();
    isUploading_ = false;
    postCompletionIfLocalJobIsDone();
}

void DataManager::moveToOutputFolder(const FilePtr& file) {
    if (!file->videoDetail) {
        return;  // a pass-through file has no encode to move
    }
    const QString source = file->videoDetail->encodedVideoUrl.toLocalFile();
    if (source.isEmpty() || !QFileInfo::exists(source)) {
        return;
    }
    const QString target = OutputFolder::targetPath(localEncodeOutputDirUrl_.toLocalFile(),
                                                    QFileInfo(source).fileName());
    LOG_VERBOSE("moving file at [{}] to [{}]", QUrl::fromLocalFile(source),
                QUrl::fromLocalFile(target));
    QFile encode(source);
    if (encode.rename(target)) {
        movedTo_.insert(file.get(), target);
        uploadedFiles_.append(file);
    } else {
        file->failureReason =
            QStringLiteral("Cannot move the encode to %1: %2").arg(target, encode.errorString());
        LOG_INFO("{}: {}", file->fileName(), file->failureReason);
        uploadFailedFiles_.append(file);
    }
    removeEncodeOf(file);
}

void DataManager::postCompletionIfLocalJobIsDone() {
    if (!isLocalEncode_ || !jobRunning_) {
        return;
    }
    // Failed encodes stay in the queue; the job is done once nothing else waits there.
    for (const FilePtr& file : std::as_const(filesQueue_)) {
        if (!encodeFailedFiles_.contains(file)) {
            return;
        }
    }
    endJob();
    LOG_INFO("Local encode ended: {} completed, {} failed into {}", uploadedFiles_.size(),
             failedFiles().size(), localEncodeOutputDirUrl_.toLocalFile());
    post(kNotificationDidFinishUploading);
}

void DataManager::stopEncoding() {
    LOG_VERBOSE("stopEncoding");
    encoder_->stopEncoding();
}

void DataManager::stopJob(std::function<void()> stopped) {
    LOG_VERBOSE("stopJob");
    const bool wasRunning = jobRunning_;
    if (wasRunning && isLocalEncode_) {
        // What the transcoder still had to do, the interrupted file first.
        for (const FilePtr& file : encoder_->encodeQueue()) {
            if (files_.contains(file) && !encodeFailedFiles_.contains(file)) {
                encodeFailedFiles_.append(file);
            }
        }
    }
    isEncoding_ = false;
    isUploading_ = false;
    endJobStopping([this, wasRunning, stopped = std::move(stopped)] {
        if (wasRunning) {
            post(kNotificationDidFinishUploading);
        }
        if (stopped) {
            stopped();
        }
    });
}

void DataManager::endJobStopping(std::function<void()> then) {
    const FilePtr interrupted = encoder_->isRunning() ? encoder_->encodeQueue().first() : nullptr;
    if (endJob()) {
        serverManager_->stopUploading();  // its report finds the job over
        encoder_->stopEncoding();
        if (!isLocalEncode_) {
            recordUnfinishedFilesAsFailed();
        }
    }
    encoder_->whenStopped([this, interrupted, then = std::move(then)] {
        if (interrupted) {
            removeEncodeOf(interrupted);
        }
        if (then) {
            then();
        }
    });
}

void DataManager::recordUnfinishedFilesAsFailed() {
    for (const FilePtr& file : std::as_const(files_)) {
        if (!uploadedFiles_.contains(file) && !encodeFailedFiles_.contains(file) &&
            !uploadFailedFiles_.contains(file)) {
            uploadFailedFiles_.append(file);
        }
    }
}

void DataManager::removeEncodesOfUnfinishedFiles() {
    for (const FilePtr& file : std::as_const(files_)) {
        if (!uploadedFiles_.contains(file)) {
            removeEncodeOf(file);
        }
    }
}

void DataManager::deleteEncodedFilesIfNecessary() {
    encoder_->waitUntilStopped();
    removeEncodesOfUnfinishedFiles();
}

FileList DataManager::failedFiles() const { return encodeFailedFiles_ + uploadFailedFiles_; }

void DataManager::didFinishLoadingDetailsForFile(const FilePtr& file) {
    post(kNotificationDidFinishLoadingDetailsForFile, QVariant::fromValue(file));
}

void DataManager::didStartEncodingFile(const FilePtr& file) {
    ++encodesStarted_;
    post(kNotificationDidStartEncodingFile,
         QVariantMap{{QStringLiteral("fileName"), file->fileName()},
                     {QStringLiteral("number"), encodesStarted_},
                     {QStringLiteral("count"), encodeCount_}});
}

void DataManager::didChangeEncodedState(double milliseconds) {
    const float percent = std::min(
        static_cast<float>((encodedVideosDuration_ + milliseconds) * 100 / totalDuration_), 100.0f);
    if (percent > 0) {
        post(kNotificationDidChangeEncodedPercent, percent);
    }
}

void DataManager::didFinishEncodingVideo(const FilePtr& file, bool isLastVideo) {
    LOG_VERBOSE("didFinishEncodingVideo");
    encodedVideosDuration_ += file->videoDetail->duration;
    uploadQueue_.append(file);
    if (!isUploading_) {
        uploadFilesFromQueue();
    }
    if (isLastVideo) {
        isEncoding_ = false;
        post(kNotificationDidChangeEncodedPercent, 100.0f);
    }
}

void DataManager::didOccureProblemWhileEncodingFile(const FilePtr& file, bool isLastVideo) {
    LOG_VERBOSE("didOccureProblemWhileEncodingFile: {}", file->fileName());
    removeEncodeOf(file);
    encodedVideosDuration_ += file->videoDetail->duration;
    encodeFailedFiles_.append(file);
    post(kNotificationDidOccureProblemWhileEncoding, QVariant::fromValue(file));
    if (!isLastVideo) {
        return;
    }
    isEncoding_ = false;
    post(kNotificationDidChangeEncodedPercent, 100.0f);
    if (isLocalEncode_) {
        // Pass-through files waited for an encode to end well; none will.
        if (uploadQueue_.isEmpty()) {
            postCompletionIfLocalJobIsDone();
        } else {
            uploadFilesFromQueue();
        }
    } else if (!isUploading_ && uploadQueue_.isEmpty()) {
        endUploadJobAfterLastEncodeFailed();
    }
}

void DataManager::didRanOutOfSpaceOnDisk() {
    LOG_VERBOSE("didRanOutOfSpaceOnDisk");
    if (!jobRunning_) {
        return;
    }
    isEncoding_ = false;
    isUploading_ = false;
    endJobStopping([this] { post(kNotificationDidRanOutOfSpaceOnDisk); });
}

void DataManager::disableEnableIdleSleep() {
    if (idleSleepAssertion_ == 0) {
        takeIdleSleepAssertion();
    } else {
        releaseIdleSleepAssertion();
    }
}

void DataManager::takeIdleSleepAssertion() {
    if (idleSleepAssertion_ != 0) {
        return;
    }
    LOG_VERBOSE("disable sleep");
    quint32 handle = 0;
    if (powerAssertion_.create(idleSleepAssertionName, handle) == 0) {
        idleSleepAssertion_ = handle;
    }
}

void DataManager::releaseIdleSleepAssertion() {
    if (idleSleepAssertion_ == 0) {
        return;
    }
    LOG_VERBOSE("enable sleep");
    powerAssertion_.release(idleSleepAssertion_);
    idleSleepAssertion_ = 0;
}
