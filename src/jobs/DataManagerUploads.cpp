// The upload half of the job manager: upload jobs, byte progress and batch results.
#include <QCoreApplication>
#include <QLocale>
#include <QPointer>
#include <QThreadPool>
#include <cstdio>

#include "jobs/DataManager.h"
#include "jobs/NotificationNames.h"
#include "platform/Log.h"
#include "service/ServerManagerHTTP.h"

using namespace NotificationNames;

namespace {

constexpr quint64 byteTextInterval = 2500000;

// "1.2 MB", "10 MB": decimal units, one decimal where it says something.
QString byteText(quint64 bytes) {
    const QLocale locale;
    QString text =
        locale.formattedDataSize(static_cast<qint64>(bytes), 1, QLocale::DataSizeSIFormat);
    const QString zeroDecimal =
        QString(locale.decimalPoint()) + QLatin1Char('0') + QLatin1Char(' ');
    return text.replace(zeroDecimal, QStringLiteral(" "));
}

}  // namespace

void DataManager::startUploadProcessForFiles(const FileList& files, const QVariantMap& parameters,
                                             bool uploadToMediaLibrary) {
    LOG_VERBOSE("startUploadProcess");
    beginJob(false);
    isUploadingToMediaLibrary_ = uploadToMediaLibrary;
    if (uploadToMediaLibrary) {
        post(kNotificationIsMediaLibraryUpload);
    }
    resetJob(files);
    uploadParameters_ = parameters;

    FileList encodeList;
    splitIntoEncodeListAndUploadQueue(files, encodeList);
    if (!encodeList.isEmpty()) {
        startEncoding(encodeList);
    }
    if (!uploadQueue_.isEmpty()) {
        // The first batch goes out without size accounting: its multiplier stays 1.
        sendToService(uploadQueue_);
    }
}

void DataManager::sendToService(const FileList& batch) {
    const FileList copy = batch;
    for (const FilePtr& file : copy) {
        filesQueue_.removeAll(file);
    }
    uploadQueue_.clear();
    isUploading_ = true;
    if (isUploadingToMediaLibrary_) {
        serverManager_->uploadFilesToMediaLibrary(copy, uploadParameters_);
    } else {
        serverManager_->uploadFilesToProjects(copy, uploadParameters_);
    }
}

void DataManager::retryUploadForFailedFiles() {
    startUploadProcessForFiles(failedFiles(), uploadParameters_, isUploadingToMediaLibrary_);
}

void DataManager::stopUploading() {
    LOG_VERBOSE("stopUploading");
    serverManager_->stopUploading();
}

void DataManager::didWriteBytes(quint64 bytes) {
    bytesWritten_ += bytes;
    const double share = static_cast<double>(bytes) * 100 / static_cast<double>(totalBytesToWrite_);
    currentUploadPercent_ += static_cast<float>(uploadMultiplier_ * share);
    const QByteArray line = QStringLiteral("bytesWritten: %1, totalBytesToWrite: %2\n")
                                .arg(static_cast<double>(bytesWritten_), 0, 'f', 6)
                                .arg(static_cast<double>(totalBytesToWrite_), 0, 'f', 6)
                                .toUtf8();
    if (byteLinesToStdout_) {
        std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stdout);
    } else {
        LOG_VERBOSE("{}", line.trimmed());
    }
    if (bytesWritten_ < lastUIByteUpdate_ ||
        bytesWritten_ - lastUIByteUpdate_ >= byteTextInterval) {
        lastUIByteUpdate_ = bytesWritten_;
        updateByteTexts(bytesWritten_, totalBytesToWrite_, currentUploadPercent_);
    }
}

void DataManager::updateByteTexts(quint64 written, quint64 total, float percent) {
    // Formatting happens off the main thread; the texts are stored and posted back on it, and a
    // text that arrives after a newer one is dropped.
    const quint64 generation = ++byteTextGeneration_;
    QPointer<DataManager> self(this);
    QThreadPool::globalInstance()->start(
        [self, generation, written, total, percent] {
            const QString writtenText = byteText(written);
            const QString totalText = byteText(total);
            QMetaObject::invokeMethod(
                QCoreApplication::instance(),
                [self, generation, writtenText, totalText, percent] {
                    if (!self || generation != self->byteTextGeneration_) {
                        return;
                    }
                    self->uploadedFileSize_ = writtenText;
                    self->totalFileSize_ = totalText;
                    self->uploadFsString_ = QStringLiteral("%1 / %2").arg(writtenText, totalText);
                    self->post(kNotificationDidChangeUploadedBytes, self->uploadFsString_);
                    self->post(kNotificationDidChangeUploadedPercent, static_cast<double>(percent));
                },
                Qt::QueuedConnection);
        },
        -1);
}

void DataManager::didFinishUploadingFile(const FilePtr& file, bool success) {
    if (!jobRunning_) {
        return;  // a stopped job has counted its unfinished files already
    }
    if (success) {
        uploadedFiles_.append(file);
    } else {
        uploadFailedFiles_.append(file);
    }
}

void DataManager::didFinishUploadingWithResult(const ErrorResponsePtr& error, bool success) {
    LOG_VERBOSE("didFinishUploadingWithSuccess: {:d}", success ? 1 : 0);
    if (!jobRunning_) {
        return;  // the batch of a job that was stopped or ran out of disk space
    }
    isUploading_ = false;
    if (success) {
        if (!uploadQueue_.isEmpty()) {
            uploadFilesFromQueue();
            return;
        }
        if (isEncoding_) {
            return;
        }
        endJob();
        post(kNotificationDidChangeUploadedPercent, 100.0f);
        post(kNotificationDidFinishUploading);
        return;
    }
    endJobStopping(
        [this, error] { post(kNotificationDidFailUploading, QVariant::fromValue(error)); });
}

void DataManager::endUploadJobAfterLastEncodeFailed() {
    if (endJob()) {
        post(kNotificationDidFinishUploading);
    }
}
