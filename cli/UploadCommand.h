#pragma once

#include "JobCommand.h"
#include "ServiceSession.h"
#include "UploadParameters.h"

class SleepWatcher;

// orvale-cli upload --server ADDRESS --user NAME [--v2]
//     (--folder ID [--description TEXT] | --category ID [--credit ID=VALUE]...) [--tag TEXT]...
//     [--preserve-original] [--do-not-encode] [--preset SIZE] [--json] PATH...
// Logs in and runs one upload job through the job manager: videos are encoded while earlier
// files upload; everything else, and every file with --do-not-encode, goes up untouched.
class UploadCommand : public JobCommand {
    Q_OBJECT

public:
    using JobCommand::JobCommand;
    ~UploadCommand() override;

    int parse(const QStringList& arguments) override;
    void start() override;

private:
    void filesGathered() override;
    void interrupted() override;
    void startUpload();
    void observeJob();
    void showProgress();
    void onBatchFailed(const ErrorResponsePtr& error);
    void onJobFinished();
    void printSummary();

    ServiceSession session_{this};
    UploadParameters parameters_;
    QStringList paths_;
    QString presetSize_;
    bool preserveOriginal_ = false;
    bool doNotEncode_ = false;
    bool json_ = false;
    SleepWatcher* sleepWatcher_ = nullptr;
    bool encodesAny_ = false;
    double encodedPercent_ = 0;
    double uploadedPercent_ = 0;
    QString byteText_;
};
