// The upload half of the service client: batches of multipart posts, one file at a time.
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

#include "model/ValidObjects.h"
#include "platform/Log.h"
#include "platform/WorkFolder.h"
#include "service/ServerManagerHTTP.h"
#include "service/UploadRequest.h"

namespace {

const QString cancelledDescription = QStringLiteral("cancelled");

bool answerSaysSuccess(const QByteArray& body) {
    const QJsonObject answer = QJsonDocument::fromJson(body).object();
    const QJsonObject root =
        ValidObjects::dictionaryForKey(answer, QStringLiteral("root")).value_or(QJsonObject());
    return ValidObjects::stringForKey(root, QStringLiteral("status")) == QStringLiteral("success");
}

}  // namespace

bool ServerManagerHTTP::hasSession() const { return addresses_.isSet(); }

void ServerManagerHTTP::uploadFilesToProjects(const FileList& files,
                                              const QVariantMap& parameters) {
    uploadFiles(files, UploadRequest::projectFields(parameters, authToken_),
                QUrl(addresses_.kBaseUrlUploadProjectFile));
}

void ServerManagerHTTP::uploadFilesToMediaLibrary(const FileList& files,
                                                  const QVariantMap& parameters) {
    uploadFiles(files, UploadRequest::mediaLibraryFields(parameters, authToken_),
                QUrl(addresses_.kBaseUrlUploadMediaLibFile));
}

void ServerManagerHTTP::uploadFiles(const FileList& files, const QVariantMap& fields,
                                    const QUrl& baseURL) {
    error_.reset();
    httpClient_ = std::make_unique<HttpBatchQueue>(transport_);
    batch_ = {files, fields, baseURL, 0};
    batchRunning_ = true;
    // Every report comes from the event loop, as answers do, never from inside this call.
    QTimer::singleShot(0, this, [this, generation = ++batchGeneration_] {
        if (generation != batchGeneration_ || !batchRunning_) {
            return;
        }
        if (!hasSession()) {
            // Nothing to send to; the batch fails as a whole.
            error_ = ErrorResponse::fromMessage(kNoSessionMessage);
            batchRunning_ = false;
            if (delegate_ != nullptr) {
                delegate_->didFinishUploadingWithResult(error_, false);
            }
            return;
        }
        sendNextFile();
    });
}

void ServerManagerHTTP::sendNextFile() {
    while (batchRunning_ && batch_.sent < batch_.files.size()) {
        const FilePtr file = batch_.files.at(batch_.sent++);
        const QList<MultipartBody::FilePart> parts = UploadRequest::fileParts(*file);
        const QString unreadable = UploadRequest::unreadablePart(parts);
        if (unreadable.isEmpty()) {
            httpClient_->enqueue(UploadRequest::make(batch_.baseURL, batch_.fields, parts),
                                 uploadCallbacks(file));
            return;
        }
        LOG_VERBOSE("Not sent: {}", unreadable);
        file->failureReason = unreadable;
        if (delegate_ != nullptr) {
            delegate_->didFinishUploadingFile(file, false);
        }
    }
    if (batchRunning_) {
        finishBatch();
    }
}

HttpTransport::Callbacks ServerManagerHTTP::uploadCallbacks(const FilePtr& file) {
    HttpTransport::Callbacks callbacks;
    callbacks.uploadProgress = [this](qint64 bytes) {
        if (delegate_ != nullptr) {
            delegate_->didWriteBytes(static_cast<quint64>(bytes));
        }
    };
    callbacks.finished = [this, file](const HttpResponse& response) {
        if (response.isTransportFailure()) {
            uploadFailed(response.errorText);
            return;
        }
        if (response.status < 200 || response.status > 299) {
            uploadFailed(
                QStringLiteral("Expected status code in (200-299), got %1").arg(response.status));
            return;
        }
        uploadSucceeded(file, response);
        LOG_VERBOSE("numberOfFinishedOperations/totalNumberOfOperations: {}/{}", batch_.sent,
                    batch_.files.size());
        sendNextFile();
    };
    return callbacks;
}

void ServerManagerHTTP::uploadSucceeded(const FilePtr& file, const HttpResponse& response) {
    LOG_VERBOSE("Upload finished for file: {}, responseString: {}", file->fileName(),
                QString::fromUtf8(response.body));
    const bool accepted = answerSaysSuccess(response.body);
    if (accepted && file->isVideo && file->videoDetail && !file->videoDetail->doNotEncode) {
        WorkFolder::removeEncode(file->videoDetail->encodedVideoUrl.toLocalFile());
    }
    if (delegate_ != nullptr) {
        delegate_->didFinishUploadingFile(file, accepted);
    }
}

void ServerManagerHTTP::uploadFailed(const QString& description) {
    if (httpClient_) {
        httpClient_->cancelAll();
    }
    LOG_VERBOSE("Error while uploading: {}", description);
    batchRunning_ = false;
    if (error_) {
        return;
    }
    error_ = ErrorResponse::fromMessage(
        QStringLiteral("Cannot connect to the Orvale server. (Message: %1)").arg(description));
    if (delegate_ != nullptr) {
        delegate_->didFinishUploadingWithResult(error_, false);
    }
}

void ServerManagerHTTP::finishBatch() {
    batchRunning_ = false;
    if (!error_ && delegate_ != nullptr) {
        delegate_->didFinishUploadingWithResult(nullptr, true);
    }
}

void ServerManagerHTTP::stopUploading() {
    // Cancelled requests report nothing more, so the stop is reported here, once.
    if (batchRunning_ && !error_) {
        uploadFailed(cancelledDescription);
    } else if (httpClient_) {
        httpClient_->cancelAll();
    }
}
