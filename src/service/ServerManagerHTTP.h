#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QVariantMap>
#include <optional>

#include "service/HttpBatchQueue.h"
#include "service/HttpTransport.h"
#include "service/JsonRequest.h"
#include "service/ServerDelegate.h"
#include "service/ServerInterface.h"
#include "service/ServiceAddresses.h"

// The client of the media-asset service's web API. Each call becomes one form POST; its JSON
// answer is read into records and reported once to the delegate, on the main thread. Several
// calls may be under way at once; nothing is retried.
class ServerManagerHTTP : public QObject, public ServerInterface {
    Q_OBJECT

public:
    // Reported by every service call made before a service address is known.
    static inline const QString kNoServiceAddressMessage =
        QStringLiteral("No service address is set; log in first.");

    explicit ServerManagerHTTP(QObject* parent = nullptr);
    ~ServerManagerHTTP() override;

    ServerDelegate* delegate() const { return delegate_; }
    // Not owned; must outlive the client or be replaced by nullptr first.
    void setDelegate(ServerDelegate* delegate) { delegate_ = delegate; }

    // Rebuilds every endpoint below the service address. The session token is kept.
    void setKBaseUrl(const QString& address);
    const ServiceAddresses& addresses() const { return addresses_; }

    // Sent as "auth_token" by every call after a login; an answer to the next login replaces it.
    const QString& authToken() const { return authToken_; }
    void setAuthToken(const QString& token) { authToken_ = token; }

    // A GET carries action and parameters in the address, as they are. Any other method puts the
    // action in the address and the parameters, form text, in the body.
    static HttpRequest requestWithURL(const QString& url, const QByteArray& method = "GET",
                                      const std::optional<QString>& action = std::nullopt,
                                      const std::optional<QString>& parameters = std::nullopt);
    // "key=value" pairs joined by "&", nothing escaped, in the map's order. The service reads
    // pairs byte for byte, so a password with "&" or "=" must go out as typed.
    static std::optional<QString> actionStringFromDictionary(
        const std::optional<QVariantMap>& dictionary);

    // Starts the request now; either handler may be empty. Both run on the main thread.
    HttpRequestId startJsonRequest(HttpRequest request, JsonRequest::Success success,
                                   JsonRequest::Failure failure);

    // ServerInterface
    void loginWithUsername(const QString& username, const QString& password) override;
    void loadPermissionsWithUserId(qint32 userId) override;
    void loadMediaLibraryCategories() override;
    void loadCreditsForCategory(const MediaLibraryCategoryPtr& category) override;
    void loadProjectList() override;
    void loadFoldersForProject(const ProjectPtr& project) override;

    // For calls that need the same transport, such as uploads.
    HttpTransport& transport() { return transport_; }

    // Uploads: one multipart POST per file, one file at a time. Bytes, each file's answer and
    // one batch result are reported to the delegate. A file that cannot be read when its turn
    // comes is not sent: it is reported as failed, with its failureReason, and the batch goes
    // on.
    static inline const QString kNoSessionMessage =
        QStringLiteral("No one is signed in to a service; sign in and try again.");
    void uploadFilesToProjects(const FileList& files, const QVariantMap& parameters);
    void uploadFilesToMediaLibrary(const FileList& files, const QVariantMap& parameters);
    void uploadFiles(const FileList& files, const QVariantMap& fields, const QUrl& baseURL);
    // Cancels every request of the running batch, which then ends as a failed batch.
    void stopUploading();

    // The maker's site (ServerManagerHTTPSite.cpp). Outcomes are the notifications of
    // MakerSite.h, not delegate calls; failures are only logged. Without a maker's site
    // configured, neither asks anything; an info line in the log says so.
    void getUpdateVersionInfo();
    void postAdsRequest(const QString& identifier);
    // The version the last "kNotificationNewVersionAvailable" announced.
    const QString& newVersion() const { return newVersion_; }

private:
    template <typename Value>
    using Report = void (ServerDelegate::*)(const ServerResult<Value>&, bool);

    // A form POST of the pairs plus "output_format"; fails at once without an address.
    void startServiceCall(const QString& url, QVariantMap pairs, JsonRequest::Success success,
                          JsonRequest::Failure failure);
    QVariantMap withToken(QVariantMap pairs) const;

    void didFinishLoggingInWithResult(const QJsonValue& answer);
    void didFailLoggingInWithError(const QString& description);
    void didFinishLoadingPermissions(const QJsonValue& answer);
    void didFinishLoadingUpdateInfo(const QJsonValue& answer);
    void didFailLoadingUpdateInfo(const QString& description);
    void didFinishLoadingAdData(const QJsonValue& answer);
    void didFailLoadingAdData(const QString& description);

    // Success and failure handlers of a call that answers with a list of records.
    template <typename Record>
    JsonRequest::Success listHandler(const QString& listKey,
                                     Report<QList<std::shared_ptr<Record>>> report);
    template <typename Value>
    JsonRequest::Failure failureHandler(Report<Value> report);

    template <typename Value>
    void report(Report<Value> method, const ServerResult<Value>& result) {
        if (delegate_ != nullptr) {
            (delegate_->*method)(result, std::holds_alternative<Value>(result));
        }
    }

    // The files of the running batch; each request is made just before it is sent.
    struct UploadBatch {
        FileList files;
        QVariantMap fields;
        QUrl baseURL;
        qsizetype sent = 0;
    };

    void sendNextFile();
    HttpTransport::Callbacks uploadCallbacks(const FilePtr& file);
    void uploadSucceeded(const FilePtr& file, const HttpResponse& response);
    void uploadFailed(const QString& description);
    void finishBatch();
    bool hasSession() const;

    ServerDelegate* delegate_ = nullptr;
    QString newVersion_;
    ServiceAddresses addresses_;
    ErrorResponsePtr error_;
    UploadBatch batch_;
    bool batchRunning_ = false;
    quint64 batchGeneration_ = 0;
    QString authToken_;
    // Last, so that it goes first: no handler runs once the client is being torn down.
    HttpTransport transport_;
    std::unique_ptr<HttpBatchQueue> httpClient_;
};
