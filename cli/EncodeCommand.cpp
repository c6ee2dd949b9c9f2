#include "EncodeCommand.h"

#include <QCommandLineParser>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

#include "ConsoleOutput.h"
#include "jobs/DataManager.h"
#include "jobs/FileSelection.h"
#include "jobs/NotificationNames.h"
#include "platform/Paths.h"

using namespace NotificationNames;

EncodeCommand::~EncodeCommand() = default;

int EncodeCommand::parse(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Encodes videos to H.264 + AAC MP4 files in an output folder."));
    const QCommandLineOption outOption(
        QStringLiteral("out"), QStringLiteral("Output folder (default: ~/Orvale Kesto Output)."),
        QStringLiteral("DIR"));
    const QCommandLineOption presetOption(QStringLiteral("preset"),
                                          QStringLiteral("Size to encode to, e.g. 1280x720."),
                                          QStringLiteral("SIZE"));
    const QCommandLineOption jsonOption(QStringLiteral("json"),
                                        QStringLiteral("Print the result as one JSON object."));
    parser.addOptions({outOption, presetOption, jsonOption});
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("PATH"), QStringLiteral("Files or folders."),
                                 QStringLiteral("PATH..."));
    if (!parser.parse(arguments)) {
        return ConsoleOutput::usageError(QStringLiteral("encode"), parser.errorText());
    }
    if (parser.isSet(QStringLiteral("help"))) {
        ConsoleOutput::out(parser.helpText());
        return exitSuccess;
    }
    paths_ = parser.positionalArguments();
    if (paths_.isEmpty()) {
        return ConsoleOutput::usageError(QStringLiteral("encode"),
                                         QStringLiteral("no paths given"));
    }
    outputDirectory_ = parser.isSet(outOption) ? QDir(parser.value(outOption)).absolutePath()
                                               : Paths::defaultOutputFolder();
    presetSize_ = parser.value(presetOption);
    json_ = parser.isSet(jsonOption);
    return -1;
}

void EncodeCommand::start() {
    gatherFiles(paths_, FileIntake::Options{false, false, presetSize_}, QStringLiteral("encode"));
}

void EncodeCommand::filesGathered() {
    startProgressLine(json_);
    observeJob();
    const QString problem = DataManager::sharedInstance().startLocalEncodeForFiles(
        jobFiles_, QUrl::fromLocalFile(outputDirectory_));
    if (!problem.isEmpty()) {
        ConsoleOutput::err(QStringLiteral("orvale-cli encode: %1\n").arg(problem));
        finishWith(exitFailure);
    }
}

void EncodeCommand::observeJob() {
    NotificationCenter& center = NotificationCenter::defaultCenter();
    center.addObserver(this, kNotificationDidChangeEncodedPercent,
                       [this](const Notification& n) { onPercent(n.object.toFloat()); });
    center.addObserver(
        this, kNotificationDidOccureProblemWhileEncoding,
        [this](const Notification& n) { showEncodeProblem(n.object.value<FilePtr>()); });
    center.addObserver(this, kNotificationDidRanOutOfSpaceOnDisk,
                       [this](const Notification&) { onDiskFull(); });
    center.addObserver(this, kNotificationDidFinishUploading,
                       [this](const Notification&) { onJobFinished(); });
}

QString EncodeCommand::currentFileName() const {
    const FileList& queue = DataManager::sharedInstance().encoder().encodeQueue();
    return queue.isEmpty() ? QString() : queue.first()->fileName();
}

void EncodeCommand::onPercent(float percent) { progress_->update(percent, currentFileName()); }

void EncodeCommand::onDiskFull() {
    progress_->message(QStringLiteral("No space left on device."));
    finishWith(exitDiskFull);
}

void EncodeCommand::interrupted() {
    stopJob(QStringLiteral("Stopping: removing unfinished encodes."));
}

void EncodeCommand::onJobFinished() {
    progress_->finish();
    printSummary();
    reportFailureReasons(QStringLiteral("encode"));
    finishWith(jobExitStatus());
}

void EncodeCommand::printSummary() {
    DataManager& manager = DataManager::sharedInstance();
    QJsonArray outputs;
    for (const FilePtr& file : manager.uploadedFiles()) {
        outputs.append(manager.outputPathOf(file));
    }
    if (json_) {
        const QJsonObject result{{QStringLiteral("completed"), manager.uploadedFilesCount()},
                                 {QStringLiteral("failed"), failedPaths()},
                                 {QStringLiteral("outputs"), outputs},
                                 {QStringLiteral("outputDirectory"), outputDirectory_}};
        ConsoleOutput::out(
            QString::fromUtf8(QJsonDocument(result).toJson(QJsonDocument::Indented)));
        return;
    }
    QString text =
        QStringLiteral("Completed: %1\n").arg(manager.uploadedFilesCount()) + failedLine();
    text += QStringLiteral("Output folder: %1\n").arg(outputDirectory_);
    ConsoleOutput::out(text);
}
