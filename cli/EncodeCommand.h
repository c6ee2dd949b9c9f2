#pragma once

#include <memory>

#include "Command.h"
#include "FileIntake.h"
#include "ProgressLine.h"

class InterruptWatcher;

// orvale-cli encode [--out DIR] [--preset SIZE] [--json] PATH...
// Runs one local-encode job through the job manager, as "Encode files" does.
class EncodeCommand : public Command {
    Q_OBJECT

public:
    static constexpr int exitDiskFull = 3;
    static constexpr int exitInterrupted = 130;

    using Command::Command;
    ~EncodeCommand() override;

    int parse(const QStringList& arguments) override;
    void start() override;

private:
    void onFilesGathered();
    void observeJob();
    void onPercent(float percent);
    void onProblem(const FilePtr& file);
    void onDiskFull();
    void onInterrupted();
    void onJobFinished();
    void printSummary();
    QString currentFileName() const;

    QStringList paths_;
    QString outputDirectory_;
    QString presetSize_;
    bool json_ = false;
    std::unique_ptr<FileIntake> intake_;
    std::unique_ptr<ProgressLine> progress_;
    InterruptWatcher* interrupts_ = nullptr;
    FileList jobFiles_;
    bool refusedAny_ = false;
};
