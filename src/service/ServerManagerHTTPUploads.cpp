// The upload half of the service client: batches of multipart posts, one file at a time.
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

#include "model/ValidObjects.h"
#include "platform/Log.h"
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
    batchRunning_ = true;
    if (!hasSession()) {
        // Nothing to send to; the batch fails as a whole, on the next turn like any answer.
        QTimer::singleShot(0, this, [this] {
            error_ = ErrorResponse::fromMessage(kNoSessionMessage);
            batchRunning_ = false;
            if (delegate_ != nullptr) {
                delegate_->didFinishUploadingWithResult(error_, false);
            }
        });
        return;
    }
    QList<HttpBatchQueue::Item> items;
    for (const FilePtr& file : files) {
        HttpTransport::Callbacks callbacks;
        callbacks.uploadProgress = [this](qint64 bytes) {
            if (delegate_ != nullptr) {
                delegate_->didWriteBytes(static_cast<quint64>(bytes));
            }
        };
        callbacks.finished = [this, file](const HttpResponse& response) {
            if (response.isTransportFailure()) {
                uploadFailed(response.errorText);
            } else if (response.status < 200 || response.status > 299) {
                uploadFailed(QStringLiteral("Expected status code in (200-299), got %1")
                                 .arg(response.status));
            } else {
                uploadSucceeded(file, response);
            }
        };
        items.append({UploadRequest::make(baseURL, fields, *file), callbacks});
    }
    HttpBatchQueue::BatchCallbacks batch;
    batch.progress = [](int finished, int total) {
        LOG_VERBOSE("numberOfFinishedOperations/totalNumberOfOperations: {}/{}", finished, total);
    };
    batch.completed = [this] { finishBatch(); };
    httpClient_->enqueueBatch(items, batch);
}

void ServerManagerHTTP::uploadSucceeded(const FilePtr& file, const HttpResponse& response) {
    LOG_VERBOSE("Upload finished for file: {}, responseString: {}", file->fileName(),
                QString::fromUtf8(response.body));
    const bool accepted = answerSaysSuccess(response.body);
    if (accepted && file->isVideo && file->videoDetail && !file->videoDetail->doNotEncode) {
        const QString encoded = file->videoDetail->encodedVideoUrl.toLocalFile();
        if (!encoded.isEmpty() && QFileInfo::exists(encoded)) {
            QFile::remove(encoded);
        }
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
