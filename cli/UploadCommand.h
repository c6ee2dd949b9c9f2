#pragma once

#include <memory>

#include "Command.h"
#include "FileIntake.h"
#include "ProgressLine.h"
#include "ServiceSession.h"
#include "UploadParameters.h"

class InterruptWatcher;
class SleepWatcher;

// orvale-cli upload --server ADDRESS --user NAME [--v2]
//     (--folder ID [--description TEXT] | --category ID [--credit ID=VALUE]...) [--tag TEXT]...
//     [--preserve-original] [--do-not-encode] [--preset SIZE] [--json] PATH...
// Logs in and runs one upload job through the job manager: videos are encoded while earlier
// files upload; everything else, and every file with --do-not-encode, goes up untouched.
class UploadCommand : public Command {
    Q_OBJECT

public:
    static constexpr int exitInterrupted = 130;

    using Command::Command;
    ~UploadCommand() override;

    int parse(const QStringList& arguments) override;
    void start() override;

private:
    void onFilesGathered();
    void startUpload();
    void observeJob();
    void showProgress();
    void onBatchFailed(const ErrorResponsePtr& error);
    void onInterrupted();
    void onJobFinished();
    void finishWith(int exitStatus);
    void printSummary();

    ServiceSession session_{this};
    UploadParameters parameters_;
    QStringList paths_;
    QString presetSize_;
    bool preserveOriginal_ = false;
    bool doNotEncode_ = false;
    bool json_ = false;
    std::unique_ptr<FileIntake> intake_;
    std::unique_ptr<ProgressLine> progress_;
    InterruptWatcher* interrupts_ = nullptr;
    SleepWatcher* sleepWatcher_ = nullptr;
    FileList jobFiles_;
    bool refusedAny_ = false;
    bool encodesAny_ = false;
    double encodedPercent_ = 0;
    double uploadedPercent_ = 0;
    QString byteText_;
};
