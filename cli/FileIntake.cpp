#include "FileIntake.h"

#include <QFileInfo>
#include <QMetaObject>

#include "ConsoleOutput.h"
#include "jobs/DataManager.h"
#include "jobs/FileSelection.h"
#include "jobs/NotificationNames.h"
#include "media/FFmpegUtilities.h"

FileIntake::FileIntake(const QStringList& paths, Options options, QObject* parent)
    : QObject(parent), paths_(paths), options_(std::move(options)) {}

void FileIntake::start() {
    NotificationCenter::defaultCenter().addObserver(
        this, NotificationNames::kNotificationDidFinishLoadingDetailsForFile,
        [this](const Notification& n) { onProbed(n.object.value<FilePtr>()); });

    // A job that sends every file as it is has no use for what a probe would tell.
    const bool probesMatter = !(options_.acceptNonVideos && options_.doNotEncode);
    for (const QString& path : FileSelection::collectFiles(paths_)) {
        auto file = std::make_shared<File>(QUrl::fromLocalFile(path));
        if (!probesMatter) {
            probed_.append(file);
            continue;
        }
        if (FileSelection::isSupportedFileType(path)) {
            if (options_.acceptNonVideos) {
                probed_.append(file);
            } else {
                refusedNames_ << file->fileName().toLower();
            }
            continue;
        }
        waiting_.append(file);
        probed_.append(file);
        DataManager::sharedInstance().addVideoDetailsToFileIfNeeded(file);
    }
    if (waiting_.isEmpty()) {
        QMetaObject::invokeMethod(this, &FileIntake::finish, Qt::QueuedConnection);
    }
}

void FileIntake::onProbed(const FilePtr& file) {
    if (!waiting_.removeOne(file)) {
        return;
    }
    if (waiting_.isEmpty()) {
        finish();
    }
}

void FileIntake::finish() {
    NotificationCenter::defaultCenter().removeObserver(this);
    for (const FilePtr& file : std::as_const(probed_)) {
        if (!file->isVideo) {
            if (options_.acceptNonVideos) {
                accepted_.append(file);
            } else {
                refusedNames_ << file->fileName().toLower();
            }
            continue;
        }
        if (choosePreset(file)) {
            accepted_.append(file);
        }
    }
    emit done();
}

bool FileIntake::choosePreset(const FilePtr& file) {
    const QList<PresetRow> rows = FFmpegUtilities::resolutionsBySize(file->videoDetail->width, file->videoDetail->height,
                                                                     options_.doNotEncode);
    if (rows.isEmpty()) {
        return false;
    }
    if (options_.doNotEncode) {
        FFmpegUtilities::applyPreset(rows.last(), *file->videoDetail);
        return true;
    }
    if (options_.presetSize.isEmpty()) {
        FFmpegUtilities::applyPreset(rows.first(), *file->videoDetail);
        return true;
    }
    QStringList offered;
    for (const PresetRow& row : rows) {
        if (row.sizeDescription == options_.presetSize) {
            FFmpegUtilities::applyPreset(row, *file->videoDetail);
            return true;
        }
        offered << row.sizeDescription;
    }
    presetProblems_ << QStringLiteral("%1 is not offered %2; it offers %3")
                           .arg(file->fileName(), options_.presetSize, offered.join(QStringLiteral(", ")));
    return false;
}

bool FileIntake::reportRefusals() const {
    if (!refusedNames_.isEmpty()) {
        ConsoleOutput::err(FileSelection::notSupportedMessage(refusedNames_) + QLatin1Char('\n'));
    }
    for (const QString& problem : presetProblems_) {
        ConsoleOutput::err(problem + QLatin1Char('\n'));
    }
    return !refusedNames_.isEmpty() || !presetProblems_.isEmpty();
}
