#pragma once

#include <QHash>
#include <QObject>
#include <QUrl>
#include <QVariantMap>
#include <memory>

#include "media/Encoder.h"
#include "platform/NotificationCenter.h"
#include "platform/PowerAssertion.h"

// The one object that runs work on the user's files: probing, encode jobs, their queues and
// progress, failures and the clean-up of unfinished encodes. It tells listeners what happens
// through named notifications. All of its state lives on the main thread.
class DataManager : public QObject, public EncoderDelegate {
    Q_OBJECT

public:
    static DataManager& sharedInstance();

    DataManager(NotificationCenter& center, PowerAssertion& powerAssertion, QObject* parent = nullptr);
    ~DataManager() override;

    // Probes the file on a thread of its own; "kNotificationDidFinishLoadingDetailsForFile"
    // follows on the main thread.
    void addVideoDetailsToFileIfNeeded(const FilePtr& file);

    void startLocalEncodeForFiles(const FileList& files, const QUrl& outputDirectory);
    void stopEncoding();
    // Removes the encodes of files not yet handed on; for the end of the process.
    void deleteEncodedFilesIfNecessary();
    // Flips the no-idle-sleep assertion: takes it when none is held, else releases it.
    void disableEnableIdleSleep();

    FileList failedFiles() const;
    int uploadedFilesCount() const { return static_cast<int>(uploadedFiles_.size()); }
    const FileList& uploadedFiles() const { return uploadedFiles_; }
    const FileList& encodeFailedFiles() const { return encodeFailedFiles_; }
    const FileList& filesQueue() const { return filesQueue_; }
    const FileList& uploadQueue() const { return uploadQueue_; }
    // Where a local-encode job put the file's encode; empty when it wasn't moved.
    QString outputPathOf(const FilePtr& file) const { return movedTo_.value(file.get()); }
    const QUrl& localEncodeOutputDirUrl() const { return localEncodeOutputDirUrl_; }
    bool isLocalEncode() const { return isLocalEncode_; }
    bool isEncoding() const { return isEncoding_; }
    bool isUploading() const { return isUploading_; }
    bool holdsIdleSleepAssertion() const { return idleSleepAssertion_ != 0; }
    double totalDuration() const { return totalDuration_; }
    quint64 totalBytesToWrite() const { return totalBytesToWrite_; }
    float uploadMultiplier() const { return uploadMultiplier_; }
    Encoder& encoder() { return *encoder_; }

    // EncoderDelegate
    void didFinishLoadingDetailsForFile(const FilePtr& file) override;
    void didChangeEncodedState(double milliseconds) override;
    void didFinishEncodingVideo(const FilePtr& file, bool isLastVideo) override;
    void didRanOutOfSpaceOnDisk() override;
    void didOccureProblemWhileEncodingFile(const FilePtr& file, bool isLastVideo) override;

private:
    void resetJob(const FileList& files);
    void uploadFilesFromQueue();
    void accountUploadSizes();
    void moveToOutputFolder(const FilePtr& file);
    void postCompletionIfLocalJobIsDone();
    void takeIdleSleepAssertion();
    void releaseIdleSleepAssertion();
    void post(QLatin1String name, const QVariant& object = {});

    NotificationCenter& center_;
    PowerAssertion& powerAssertion_;
    std::unique_ptr<Encoder> encoder_;

    FileList files_;
    FileList filesQueue_;
    FileList uploadQueue_;
    FileList encodeFailedFiles_;
    FileList uploadFailedFiles_;
    FileList uploadedFiles_;
    QHash<const File*, QString> movedTo_;
    QVariantMap uploadParameters_;
    bool isLocalEncode_ = false;
    bool isUploadingToMediaLibrary_ = false;
    bool isEncoding_ = false;
    bool isUploading_ = false;
    bool completionPosted_ = false;
    QUrl localEncodeOutputDirUrl_;
    double totalDuration_ = 0;
    double encodedVideosDuration_ = 0;
    quint64 totalBytesToWrite_ = 0;
    quint64 bytesWritten_ = 0;
    quint64 lastUIByteUpdate_ = 0;
    float currentUploadPercent_ = 0;
    float uploadMultiplier_ = 1.0f;
    quint32 idleSleepAssertion_ = 0;
};
