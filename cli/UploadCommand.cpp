#include "UploadCommand.h"

#include <QJsonDocument>
#include <QJsonObject>

#include "ConsoleOutput.h"
#include "jobs/DataManager.h"
#include "jobs/FileSelection.h"
#include "jobs/NotificationNames.h"
#include "platform/SleepWatcher.h"

using namespace NotificationNames;

UploadCommand::~UploadCommand() = default;

int UploadCommand::parse(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Logs in and uploads files to a project folder or the media library.\n"
        "Videos are encoded first unless --do-not-encode; other files go up "
        "as they are.\nThe password is read from $ORVALE_PASSWORD, else asked for."));
    session_.addOptions(parser);
    parameters_.addOptions(parser);
    const QCommandLineOption preserveOption(
        QStringLiteral("preserve-original"),
        QStringLiteral("Upload each video's untouched source next to its encode."));
    const QCommandLineOption doNotEncodeOption(QStringLiteral("do-not-encode"),
                                               QStringLiteral("Upload videos as they are."));
    const QCommandLineOption presetOption(QStringLiteral("preset"),
                                          QStringLiteral("Size to encode to, e.g. 1280x720."),
                                          QStringLiteral("SIZE"));
    const QCommandLineOption jsonOption(QStringLiteral("json"),
                                        QStringLiteral("Print the result as one JSON object."));
    parser.addOptions({preserveOption, doNotEncodeOption, presetOption, jsonOption});
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("PATH"), QStringLiteral("Files or folders."),
                                 QStringLiteral("PATH..."));
    const QString command = QStringLiteral("upload");
    if (!parser.parse(arguments)) {
        return ConsoleOutput::usageError(command, parser.errorText());
    }
    if (parser.isSet(QStringLiteral("help"))) {
        ConsoleOutput::out(parser.helpText());
        return exitSuccess;
    }
    paths_ = parser.positionalArguments();
    if (paths_.isEmpty()) {
        return ConsoleOutput::usageError(command, QStringLiteral("no paths given"));
    }
    const QString problem = parameters_.read(parser);
    if (!problem.isEmpty()) {
        return ConsoleOutput::usageError(command, problem);
    }
    preserveOriginal_ = parser.isSet(preserveOption);
    doNotEncode_ = parser.isSet(doNotEncodeOption);
    presetSize_ = parser.value(presetOption);
    json_ = parser.isSet(jsonOption);
    // Last, so that a usage error never costs the user a password prompt.
    return session_.read(parser, command);
}

void UploadCommand::start() {
    DataManager& manager = DataManager::sharedInstance();
    // Standard output carries the command's result only.
    manager.setByteLinesToStandardOutput(false);
    sleepWatcher_ = new SleepWatcher(this);
    connect(sleepWatcher_, &SleepWatcher::willSleep, &manager, &DataManager::stopUploading);
    gatherFiles(paths_, FileIntake::Options{true, doNotEncode_, presetSize_},
                QStringLiteral("upload"));
}

void UploadCommand::filesGathered() {
    for (const FilePtr& file : std::as_const(jobFiles_)) {
        if (UploadChoice::canPreserveOriginal(*file)) {
            file->videoDetail->preserveOriginal = preserveOriginal_;
            encodesAny_ = true;
        }
    }
    session_.start([this](const UserPtr&) { startUpload(); },
                   [this](const ErrorResponsePtr& error) {
                       finishWith(ServiceSession::reportFailure(error));
                   });
}

void UploadCommand::startUpload() {
    startProgressLine(json_);
    observeJob();
    DataManager::sharedInstance().startUploadProcessForFiles(jobFiles_, parameters_.dictionary(),
                                                             parameters_.toMediaLibrary());
}

void UploadCommand::observeJob() {
    NotificationCenter& center = NotificationCenter::defaultCenter();
    center.addObserver(this, kNotificationDidChangeEncodedPercent, [this](const Notification& n) {
        encodedPercent_ = n.object.toDouble();
        showProgress();
    });
    center.addObserver(this, kNotificationDidChangeUploadedPercent, [this](const Notification& n) {
        uploadedPercent_ = n.object.toDouble();
        showProgress();
    });
    center.addObserver(this, kNotificationDidChangeUploadedBytes,
                       [this](const Notification& n) { byteText_ = n.object.toString(); });
    center.addObserver(
        this, kNotificationDidOccureProblemWhileEncoding,
        [this](const Notification& n) { showEncodeProblem(n.object.value<FilePtr>()); });
    center.addObserver(this, kNotificationDidFailUploading, [this](const Notification& n) {
        onBatchFailed(n.object.value<ErrorResponsePtr>());
    });
    center.addObserver(this, kNotificationDidFinishUploading,
                       [this](const Notification&) { onJobFinished(); });
    center.addObserver(this, kNotificationDidRanOutOfSpaceOnDisk, [this](const Notification&) {
        progress_->message(QStringLiteral("No space left on device. Upload will be aborted."));
        printSummary();
        finishWith(exitDiskFull);
    });
}

void UploadCommand::showProgress() {
    QString detail =
        encodesAny_ ? QStringLiteral("encoded %1%  ").arg(encodedPercent_, 0, 'f', 1) : QString();
    detail += QStringLiteral("uploaded %1").arg(byteText_);
    progress_->update(qBound(0.0, uploadedPercent_, 100.0), detail);
}

void UploadCommand::onBatchFailed(const ErrorResponsePtr& error) {
    progress_->finish();
    printSummary();
    finishWith(ServiceSession::reportFailure(error));
}

void UploadCommand::interrupted() { stopJob(QStringLiteral("Stopping: cancelling the upload.")); }

void UploadCommand::onJobFinished() {
    progress_->finish();
    printSummary();
    finishWith(jobExitStatus());
}

void UploadCommand::printSummary() {
    DataManager& manager = DataManager::sharedInstance();
    reportFailureReasons(QStringLiteral("upload"));
    if (json_) {
        const QJsonObject result{{QStringLiteral("uploaded"), manager.uploadedFilesCount()},
                                 {QStringLiteral("failed"), failedPaths()}};
        ConsoleOutput::out(
            QString::fromUtf8(QJsonDocument(result).toJson(QJsonDocument::Indented)));
        return;
    }
    ConsoleOutput::out(QStringLiteral("Uploaded: %1\n").arg(manager.uploadedFilesCount()) +
                       failedLine());
}
