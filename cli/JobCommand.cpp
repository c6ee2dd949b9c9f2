#include "JobCommand.h"

#include "ConsoleOutput.h"
#include "jobs/DataManager.h"
#include "platform/InterruptWatcher.h"

JobCommand::~JobCommand() = default;

void JobCommand::gatherFiles(const QStringList& paths, FileIntake::Options options,
                             const QString& command) {
    interrupts_ = new InterruptWatcher(this);
    connect(interrupts_, &InterruptWatcher::interrupted, this, &JobCommand::interrupted);
    intake_ = std::make_unique<FileIntake>(paths, std::move(options));
    connect(intake_.get(), &FileIntake::done, this, [this, command] { onFilesGathered(command); });
    intake_->start();
}

void JobCommand::onFilesGathered(const QString& command) {
    refusedAny_ = intake_->reportRefusals();
    jobFiles_ = intake_->accepted();
    if (jobFiles_.isEmpty()) {
        ConsoleOutput::err(QStringLiteral("orvale-cli %1: nothing to %1\n").arg(command));
        emit finished(exitFailure);
        return;
    }
    filesGathered();
}

void JobCommand::startProgressLine(bool json) {
    progress_ = std::make_unique<ProgressLine>(!json && ConsoleOutput::stderrIsTerminal());
}

void JobCommand::showEncodeProblem(const FilePtr& file) {
    progress_->message(
        QStringLiteral(
            "Ooops! Something went wrong while encoding video: %1. Video will be skipped.")
            .arg(file->fileName()));
}

int JobCommand::jobExitStatus() const {
    if (interrupted_) {
        return exitInterrupted;
    }
    const bool failedAny = !DataManager::sharedInstance().failedFiles().isEmpty();
    return failedAny || refusedAny_ ? exitFailure : exitSuccess;
}

QJsonArray JobCommand::failedPaths() {
    QJsonArray paths;
    for (const FilePtr& file : DataManager::sharedInstance().failedFiles()) {
        paths.append(file->path());
    }
    return paths;
}

QString JobCommand::failedLine() {
    QStringList names;
    for (const FilePtr& file : DataManager::sharedInstance().failedFiles()) {
        names << file->fileName();
    }
    return names.isEmpty() ? QString()
                           : QStringLiteral("Failed: %1\n").arg(names.join(QStringLiteral(", ")));
}

void JobCommand::reportFailureReasons(const QString& command) {
    for (const FilePtr& file : DataManager::sharedInstance().failedFiles()) {
        if (!file->failureReason.isEmpty()) {
            ConsoleOutput::err(QStringLiteral("orvale-cli %1: %2: %3\n")
                                   .arg(command, file->fileName(), file->failureReason));
        }
    }
}

void JobCommand::stopJob(const QString& stopping) {
    if (interrupted_) {
        return;  // a second Ctrl-C while the first one is being handled
    }
    interrupted_ = true;
    if (progress_) {
        progress_->message(stopping);
    }
    DataManager& manager = DataManager::sharedInstance();
    const bool jobRunning = manager.isJobRunning();
    manager.stopJob([this, jobRunning] {
        if (!jobRunning) {
            finishWith(exitInterrupted);
        }
    });
}

void JobCommand::finishWith(int exitStatus) {
    NotificationCenter::defaultCenter().removeObserver(this);
    DataManager::sharedInstance().deleteEncodedFilesIfNecessary();
    emit finished(exitStatus);
}
