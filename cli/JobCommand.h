#pragma once

#include <QJsonArray>
#include <memory>

#include "Command.h"
#include "FileIntake.h"
#include "ProgressLine.h"

class InterruptWatcher;

// What the encode and upload commands share: Ctrl-C watched, the files gathered and refused as
// the file selection screen does, a progress line, the failed files in the summary, and an end
// that leaves nothing of the job in the work folder (the command has no later retry).
class JobCommand : public Command {
    Q_OBJECT

public:
    static constexpr int exitDiskFull = 3;
    static constexpr int exitInterrupted = 130;

    using Command::Command;
    ~JobCommand() override;

protected:
    // Refusals go to standard error; filesGathered() follows with at least one file, else the
    // command ends in failure with "orvale-cli COMMAND: nothing to COMMAND".
    void gatherFiles(const QStringList& paths, FileIntake::Options options, const QString& command);
    virtual void filesGathered() = 0;
    // SIGINT or SIGTERM; the command calls stopJob().
    virtual void interrupted() = 0;
    // Stops the job through the job manager's one stop operation, `stopping` shown first. A
    // running job then ends as usual (the command's end handler prints the summary, the stopped
    // files among the failed ones); without one the command ends at once. Either way the exit
    // status is exitInterrupted.
    void stopJob(const QString& stopping);

    void startProgressLine(bool json);
    // The progress screen's text for a video that could not be encoded, on the progress line.
    void showEncodeProblem(const FilePtr& file);
    // exitInterrupted after stopJob(), else exitFailure when a file failed or was refused, else
    // exitSuccess.
    int jobExitStatus() const;
    static QJsonArray failedPaths();
    // "Failed: a.mov, b.mov\n", or nothing when no file failed.
    static QString failedLine();
    // Why files failed, where the job knows, one line each on standard error.
    static void reportFailureReasons(const QString& command);
    // Stops observing the job, removes what is left of it in the work folder, and ends.
    void finishWith(int exitStatus);

    std::unique_ptr<ProgressLine> progress_;
    FileList jobFiles_;

private:
    void onFilesGathered(const QString& command);

    std::unique_ptr<FileIntake> intake_;
    InterruptWatcher* interrupts_ = nullptr;
    bool refusedAny_ = false;
    bool interrupted_ = false;
};
