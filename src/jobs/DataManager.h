#pragma once

#include <QHash>
#include <QObject>
#include <QUrl>
#include <QVariantMap>
#include <functional>
#include <memory>
#include <optional>

#include "media/Encoder.h"
#include "media/ProbePool.h"
#include "model/User.h"
#include "platform/NotificationCenter.h"
#include "platform/PowerAssertion.h"
#include "platform/UserDefaultsManager.h"
#include "service/ServerManagerHTTP.h"

// The one object that runs work on the user's files: probing, encode jobs, their queues and
// progress, failures and the clean-up of unfinished encodes. It also holds the service session
// and loads the service's catalogue. It tells listeners what happens through named
// notifications. All of its state lives on the main thread.
//
// Every job ends exactly once: completed ("kNotificationDidFinishUploading"), failed batch
// ("kNotificationDidFailUploading"), full disk ("kNotificationDidRanOutOfSpaceOnDisk") or
// stopped (stopJob). The idle-sleep assertion is taken at every job start and released at
// every job end, whatever the kind. An end that stops the transcoder is announced once it has
// ended and its unfinished output is gone. A stopped job ends as a completed one does, with
// the files it did not finish among the failed ones.
class DataManager : public QObject, public EncoderDelegate, public ServerDelegate {
    Q_OBJECT

public:
    static DataManager& sharedInstance();

    DataManager(NotificationCenter& center, PowerAssertion& powerAssertion,
                UserDefaultsManager& userDefaultsManager, QObject* parent = nullptr);
    // With the application's settings store, for jobs that never touch the session.
    DataManager(NotificationCenter& center, PowerAssertion& powerAssertion,
                QObject* parent = nullptr);
    ~DataManager() override;

    // Probes the file on a thread of the probe pool; "kNotificationDidFinishLoadingDetailsForFile"
    // follows on the main thread.
    void addVideoDetailsToFileIfNeeded(const FilePtr& file);

    // Returns why the job could not start ("Cannot write to the output folder ...: ..."), or
    // empty when it started. A job that does not start posts nothing.
    QString startLocalEncodeForFiles(const FileList& files, const QUrl& outputDirectory);

    // Upload jobs (DataManagerUploads.cpp): files encode and upload at the same time.
    void startUploadProcessForFiles(const FileList& files, const QVariantMap& parameters,
                                    bool uploadToMediaLibrary);
    void retryUploadForFailedFiles();
    void stopUploading();
    // The per-chunk byte line goes to standard output (the app) or to the log (orvale-cli,
    // whose standard output is its own).
    void setByteLinesToStandardOutput(bool toStandardOutput) {
        byteLinesToStdout_ = toStandardOutput;
    }
    const FileList& uploadFailedFiles() const { return uploadFailedFiles_; }
    float currentUploadPercent() const { return currentUploadPercent_; }
    quint64 bytesWritten() const { return bytesWritten_; }
    const QString& uploadFsString() const { return uploadFsString_; }
    bool isUploadingToMediaLibrary() const { return isUploadingToMediaLibrary_; }
    // Stops the transcoder and nothing else: for the end of the process. To stop a job, stopJob().
    void stopEncoding();
    // The one way to stop a running job of either kind (the app's Stop, orvale-cli's Ctrl-C).
    // The transcoder and any upload batch are stopped and the assertion released at once; the
    // files not finished become failed files (encode failures in a local-encode job, upload
    // failures in an upload job). Once the transcoder has ended and the interrupted encode is
    // removed, "kNotificationDidFinishUploading" ends the job, then `stopped` runs (also when
    // no job was running, which posts nothing). Encodes that are done and wait for their upload
    // are kept for a retry.
    void stopJob(std::function<void()> stopped = {});
    // "Try Again": the failed files of the last job as a job of the same kind. After a
    // local-encode job they are encoded again into the same output folder with the sizes they
    // had; after an upload job, retryUploadForFailedFiles(). Returns why the job could not
    // start, as startLocalEncodeForFiles does.
    QString retryFailedFiles();
    // Waits for stopped transcoders, then removes the encodes of the job's files that were not
    // handed on; for the end of the process, and of orvale-cli's jobs, which have no retry.
    void deleteEncodedFilesIfNecessary();
    // Flips the no-idle-sleep assertion: takes it when none is held, else releases it.
    void disableEnableIdleSleep();

    FileList failedFiles() const;
    // The files of the last job, as it was given them.
    const FileList& files() const { return files_; }
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
    bool isJobRunning() const { return jobRunning_; }
    bool holdsIdleSleepAssertion() const { return idleSleepAssertion_ != 0; }
    double totalDuration() const { return totalDuration_; }
    quint64 totalBytesToWrite() const { return totalBytesToWrite_; }
    float uploadMultiplier() const { return uploadMultiplier_; }
    Encoder& encoder() { return *encoder_; }

    // Session and catalogue (DataManagerSession.cpp). Each load ends in one finish or fail
    // notification; the lists are not kept here.
    bool shouldAutoLogin() const { return loggedinUser_ != nullptr; }
    // Logs in on the first API generation; switch to the second afterwards with setIsUsingV2.
    void loginWithOrvaleUrl(const QString& orvaleUrl, const QString& username,
                            const QString& password, bool shouldRememberUser);
    void logout();
    // Switching on moves the service addresses below "/v2" of the session's site; without a
    // site yet they stay unset until a login. Switching off rebuilds nothing.
    void setIsUsingV2(bool isUsingV2);
    void loadPermissions();
    void loadProjectList();
    void loadMediaLibraryCategories();
    void loadCreditsForCategory(const MediaLibraryCategoryPtr& category);
    void loadFoldersForProject(const ProjectPtr& project);
    static qint32 indexOfParentFolder(qint32 parentID, const FolderList& folders);

    // The maker's site (DataManagerSite.cpp): the service client posts what comes back.
    void checkForKestoUpdates();
    // With the identifier stored under "uid", or an empty one: nothing here stores it.
    void getAds();

    const UserPtr& loggedinUser() const { return loggedinUser_; }
    const UserPtr& tempUser() const { return tempUser_; }
    // True only while a login is waiting for its answer.
    bool holdsTempPwd() const { return tempPwd_.has_value(); }
    bool shouldRememberUser() const { return shouldRememberUser_; }
    bool isUsingV2() const { return isUsingV2_; }
    bool hasMediaLibAccess() const { return hasMediaLibAccess_; }
    bool hasProjectsAccess() const { return hasProjectsAccess_; }
    ServerManagerHTTP& serverManager() { return *serverManager_; }
    UserDefaultsManager& userDefaultsManager() { return userDefaultsManager_; }

    // ServerDelegate
    void didFinishLoggingInWithResult(const ServerResult<QJsonObject>& result,
                                      bool success) override;
    void didFinishLoadingPermissionsWithResult(const ServerResult<Permissions>& result,
                                               bool success) override;
    void didFinishLoadingMediaLibraryCategories(
        const ServerResult<MediaLibraryCategoryList>& result, bool success) override;
    void didFinishLoadingProjectList(const ServerResult<ProjectList>& result,
                                     bool success) override;
    void didFinishLoadingCreditsForCategory(const ServerResult<CreditList>& result,
                                            bool success) override;
    void didFinishLoadingFoldersForProject(const ServerResult<FolderList>& result,
                                           bool success) override;
    void didWriteBytes(quint64 bytes) override;
    void didFinishUploadingFile(const FilePtr& file, bool success) override;
    void didFinishUploadingWithResult(const ErrorResponsePtr& error, bool success) override;

    // EncoderDelegate
    void didFinishLoadingDetailsForFile(const FilePtr& file) override;
    void didStartEncodingFile(const FilePtr& file) override;
    void didChangeEncodedState(double milliseconds) override;
    void didFinishEncodingVideo(const FilePtr& file, bool isLastVideo) override;
    void didRanOutOfSpaceOnDisk() override;
    void didOccureProblemWhileEncodingFile(const FilePtr& file, bool isLastVideo) override;

private:
    void setUpSession();
    void rememberUserIfAsked(const User& user);
    void resetJob(const FileList& files);
    void uploadFilesFromQueue();
    void sendToService(const FileList& batch);
    void splitIntoEncodeListAndUploadQueue(const FileList& files, FileList& encodeList);
    void startEncoding(const FileList& encodeList);
    void updateByteTexts(quint64 written, quint64 total, float percent);
    void endUploadJobAfterLastEncodeFailed();
    void accountUploadSizes();
    void moveToOutputFolder(const FilePtr& file);
    void postCompletionIfLocalJobIsDone();
    void beginJob(bool isLocalEncode);
    // Marks the running job's end and releases the assertion; false when no job was running.
    bool endJob();
    // Ends the job now (if one runs) and stops its batch and transcoder; `then` runs once the
    // transcoder has ended and the interrupted encode is removed.
    void endJobStopping(std::function<void()> then);
    void recordUnfinishedFilesAsFailed();
    void removeEncodesOfUnfinishedFiles();
    void takeIdleSleepAssertion();
    void releaseIdleSleepAssertion();
    void post(QLatin1String name, const QVariant& object = {});

    NotificationCenter& center_;
    PowerAssertion& powerAssertion_;
    UserDefaultsManager& userDefaultsManager_;
    std::unique_ptr<ServerManagerHTTP> serverManager_;
    std::unique_ptr<Encoder> encoder_;
    // After the encoder, so that it goes first: its threads use the encoder.
    std::unique_ptr<ProbePool> probePool_;

    UserPtr loggedinUser_;
    UserPtr tempUser_;
    // Held only from the login's start to its answer; never written anywhere.
    std::optional<QString> tempPwd_;
    bool shouldRememberUser_ = false;
    bool isUsingV2_ = false;
    bool hasMediaLibAccess_ = false;
    bool hasProjectsAccess_ = false;

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
    bool jobRunning_ = false;
    QUrl localEncodeOutputDirUrl_;
    double totalDuration_ = 0;
    double encodedVideosDuration_ = 0;
    int encodeCount_ = 0;
    int encodesStarted_ = 0;
    quint64 totalBytesToWrite_ = 0;
    quint64 bytesWritten_ = 0;
    quint64 lastUIByteUpdate_ = 0;
    float currentUploadPercent_ = 0;
    float uploadMultiplier_ = 1.0f;
    quint32 idleSleepAssertion_ = 0;
    bool byteLinesToStdout_ = true;
    quint64 byteTextGeneration_ = 0;
    QString uploadedFileSize_;
    QString totalFileSize_;
    QString uploadFsString_;
};
