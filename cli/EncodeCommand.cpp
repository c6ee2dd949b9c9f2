#include "EncodeCommand.h"

#include <QCommandLineParser>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "ConsoleOutput.h"
#include "InterruptWatcher.h"
#include "jobs/DataManager.h"
#include "jobs/FileSelection.h"
#include "jobs/NotificationNames.h"
#include "platform/Paths.h"

using namespace NotificationNames;

EncodeCommand::~EncodeCommand() = default;

int EncodeCommand::parse(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Encodes videos to H.264 + AAC MP4 files in an output folder."));
    const QCommandLineOption outOption(QStringLiteral("out"), QStringLiteral("Output folder (default: ~/Orvale Kesto Output)."),
                                       QStringLiteral("DIR"));
    const QCommandLineOption presetOption(QStringLiteral("preset"), QStringLiteral("Size to encode to, e.g. 1280x720."),
                                          QStringLiteral("SIZE"));
    const QCommandLineOption jsonOption(QStringLiteral("json"), QStringLiteral("Print the result as one JSON object."));
    parser.addOptions({outOption, presetOption, jsonOption});
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("PATH"), QStringLiteral("Files or folders."), QStringLiteral("PATH..."));
    if (!parser.parse(arguments)) {
        return ConsoleOutput::usageError(QStringLiteral("encode"), parser.errorText());
    }
    if (parser.isSet(QStringLiteral("help"))) {
        ConsoleOutput::out(parser.helpText());
        return exitSuccess;
    }
    paths_ = parser.positionalArguments();
    if (paths_.isEmpty()) {
        return ConsoleOutput::usageError(QStringLiteral("encode"), QStringLiteral("no paths given"));
    }
    outputDirectory_ = parser.isSet(outOption) ? QDir(parser.value(outOption)).absolutePath() : Paths::defaultOutputFolder();
    presetSize_ = parser.value(presetOption);
    json_ = parser.isSet(jsonOption);
    return -1;
}

void EncodeCommand::start() {
    interrupts_ = new InterruptWatcher(this);
    connect(interrupts_, &InterruptWatcher::interrupted, this, &EncodeCommand::onInterrupted);
    intake_ = std::make_unique<FileIntake>(paths_, FileIntake::Options{false, false, presetSize_});
    connect(intake_.get(), &FileIntake::done, this, &EncodeCommand::onFilesGathered);
    intake_->start();
}

void EncodeCommand::onFilesGathered() {
    refusedAny_ = intake_->reportRefusals();
    jobFiles_ = intake_->accepted();
    if (jobFiles_.isEmpty()) {
        ConsoleOutput::err(QStringLiteral("orvale-cli encode: nothing to encode\n"));
        emit finished(exitFailure);
        return;
    }
    progress_ = std::make_unique<ProgressLine>(!json_ && ConsoleOutput::stderrIsTerminal());
    observeJob();
    DataManager::sharedInstance().startLocalEncodeForFiles(jobFiles_, QUrl::fromLocalFile(outputDirectory_));
}

void EncodeCommand::observeJob() {
    NotificationCenter& center = NotificationCenter::defaultCenter();
    center.addObserver(this, kNotificationDidChangeEncodedPercent,
                       [this](const Notification& n) { onPercent(n.object.toFloat()); });
    center.addObserver(this, kNotificationDidOccureProblemWhileEncoding,
                       [this](const Notification& n) { onProblem(n.object.value<FilePtr>()); });
    center.addObserver(this, kNotificationDidRanOutOfSpaceOnDisk, [this](const Notification&) { onDiskFull(); });
    center.addObserver(this, kNotificationDidFinishUploading, [this](const Notification&) { onJobFinished(); });
}

QString EncodeCommand::currentFileName() const {
    const FileList& queue = DataManager::sharedInstance().encoder().encodeQueue();
    return queue.isEmpty() ? QString() : queue.first()->fileName();
}

void EncodeCommand::onPercent(float percent) {
    progress_->update(percent, currentFileName());
}

void EncodeCommand::onProblem(const FilePtr& file) {
    progress_->message(
        QStringLiteral("Ooops! Something went wrong while encoding video: %1. Video will be skipped.").arg(file->fileName()));
}

void EncodeCommand::onDiskFull() {
    progress_->message(QStringLiteral("No space left on device."));
    NotificationCenter::defaultCenter().removeObserver(this);
    DataManager::sharedInstance().deleteEncodedFilesIfNecessary();
    emit finished(exitDiskFull);
}

void EncodeCommand::onInterrupted() {
    if (progress_) {
        progress_->message(QStringLiteral("Stopping: removing unfinished encodes."));
    }
    NotificationCenter::defaultCenter().removeObserver(this);
    DataManager::sharedInstance().stopEncoding();
    DataManager::sharedInstance().deleteEncodedFilesIfNecessary();
    emit finished(exitInterrupted);
}

void EncodeCommand::onJobFinished() {
    NotificationCenter::defaultCenter().removeObserver(this);
    progress_->finish();
    printSummary();
    const bool failedAny = !DataManager::sharedInstance().failedFiles().isEmpty();
    emit finished(failedAny || refusedAny_ ? exitFailure : exitSuccess);
}

void EncodeCommand::printSummary() {
    DataManager& manager = DataManager::sharedInstance();
    QJsonArray failed;
    QStringList failedNames;
    for (const FilePtr& file : manager.failedFiles()) {
        failed.append(file->path());
        failedNames << file->fileName();
    }
    QJsonArray outputs;
    for (const FilePtr& file : manager.uploadedFiles()) {
        outputs.append(manager.outputPathOf(file));
    }
    if (json_) {
        const QJsonObject result{{QStringLiteral("completed"), manager.uploadedFilesCount()},
                                 {QStringLiteral("failed"), failed},
                                 {QStringLiteral("outputs"), outputs},
                                 {QStringLiteral("outputDirectory"), outputDirectory_}};
        ConsoleOutput::out(QString::fromUtf8(QJsonDocument(result).toJson(QJsonDocument::Indented)));
        return;
    }
    QString text = QStringLiteral("Completed: %1\n").arg(manager.uploadedFilesCount());
    if (!failedNames.isEmpty()) {
        text += QStringLiteral("Failed: %1\n").arg(failedNames.join(QStringLiteral(", ")));
    }
    text += QStringLiteral("Output folder: %1\n").arg(outputDirectory_);
    ConsoleOutput::out(text);
}
