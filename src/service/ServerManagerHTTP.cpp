#include "service/ServerManagerHTTP.h"

#include <QTimer>
#include <QUrl>

#include "model/ValidObjects.h"
#include "platform/Log.h"

namespace {

QJsonObject rootOf(const QJsonValue& answer) {
    return ValidObjects::dictionaryForKey(answer.toObject(), QStringLiteral("root"))
        .value_or(QJsonObject());
}

template <typename Record>
QList<std::shared_ptr<Record>> recordsUnder(const QJsonObject& root, const QString& listKey) {
    QList<std::shared_ptr<Record>> records;
    const QJsonArray items = ValidObjects::arrayForKey(root, listKey).value_or(QJsonArray());
    for (const QJsonValue& item : items) {
        records.append(Record::fromJson(item.toObject()));
    }
    return records;
}

}  // namespace

ServerManagerHTTP::ServerManagerHTTP(QObject* parent) : QObject(parent) {}

ServerManagerHTTP::~ServerManagerHTTP() = default;

void ServerManagerHTTP::setKBaseUrl(const QString& address) {
    addresses_ = ServiceAddresses::fromServiceAddress(address);
    LOG_VERBOSE("Service API at {}", addresses_.kBaseUrl);
}

HttpRequest ServerManagerHTTP::requestWithURL(const QString& url, const QByteArray& method,
                                              const std::optional<QString>& action,
                                              const std::optional<QString>& parameters) {
    QString address = url + action.value_or(QString());
    if (method == "GET") {
        address += parameters.value_or(QString());
        return HttpRequest(method, QUrl(address));
    }
    HttpRequest request(method, QUrl(address));
    if (parameters) {
        // The transport sets Content-Length from the body. The label is said here rather than
        // left to the transport's defaults: the service refuses form text labelled otherwise.
        request.setHeader("Content-Type", HttpRequest::kFormContentType);
        request.setBody(parameters->toUtf8());
    }
    return request;
}

std::optional<QString> ServerManagerHTTP::actionStringFromDictionary(
    const std::optional<QVariantMap>& dictionary) {
    if (!dictionary) {
        return std::nullopt;
    }
    HttpRequest::FormPairs pairs;
    for (auto it = dictionary->constBegin(); it != dictionary->constEnd(); ++it) {
        pairs.append({it.key(), it.value().toString()});
    }
    return QString::fromUtf8(HttpRequest::formText(pairs));
}

HttpRequestId ServerManagerHTTP::startJsonRequest(HttpRequest request, JsonRequest::Success success,
                                                  JsonRequest::Failure failure) {
    return JsonRequest::start(transport_, std::move(request), std::move(success),
                              std::move(failure));
}

void ServerManagerHTTP::startServiceCall(const QString& url, QVariantMap pairs,
                                         JsonRequest::Success success,
                                         JsonRequest::Failure failure) {
    if (!addresses_.isSet()) {
        LOG_VERBOSE("No service address yet; failing the call");
        // Still reported from the event loop, as an answer would be, never inside the call.
        QTimer::singleShot(0, this, [failure = std::move(failure)] {
            if (failure) {
                failure(kNoServiceAddressMessage);
            }
        });
        return;
    }
    pairs.insert(QStringLiteral("output_format"), QStringLiteral("json"));
    LOG_VERBOSE("POST {}", url);
    startJsonRequest(requestWithURL(url, "POST", std::nullopt, actionStringFromDictionary(pairs)),
                     std::move(success), std::move(failure));
}

QVariantMap ServerManagerHTTP::withToken(QVariantMap pairs) const {
    pairs.insert(QStringLiteral("auth_token"), authToken_);
    return pairs;
}

template <typename Record>
JsonRequest::Success ServerManagerHTTP::listHandler(const QString& listKey,
                                                    Report<QList<std::shared_ptr<Record>>> method) {
    return [this, listKey, method](const QJsonValue& answer) {
        report(method, ServerResult<QList<std::shared_ptr<Record>>>(
                           recordsUnder<Record>(rootOf(answer), listKey)));
    };
}

template <typename Value>
JsonRequest::Failure ServerManagerHTTP::failureHandler(Report<Value> method) {
    return [this, method](const QString& description) {
        LOG_VERBOSE("Service call failed: {}", description);
        report(method, ServerResult<Value>(ErrorResponse::fromMessage(description)));
    };
}

void ServerManagerHTTP::loginWithUsername(const QString& username, const QString& password) {
    LOG_VERBOSE("Logging in as {}", username);
    startServiceCall(
        addresses_.kBaseUrlLogin,
        {{QStringLiteral("connect_un"), username}, {QStringLiteral("connect_pw"), password}},
        [this](const QJsonValue& answer) { didFinishLoggingInWithResult(answer); },
        [this](const QString& description) { didFailLoggingInWithError(description); });
}

void ServerManagerHTTP::didFinishLoggingInWithResult(const QJsonValue& answer) {
    const QJsonObject root = rootOf(answer);
    // Whatever the answer, it is the session's token from now on; a refusal clears it.
    authToken_ = ValidObjects::stringForKey(root, QStringLiteral("api_token"));
    if (!authToken_.isEmpty()) {
        report(&ServerDelegate::didFinishLoggingInWithResult, ServerResult<QJsonObject>(root));
        return;
    }
    const QString message = ValidObjects::stringForKey(root, QStringLiteral("message"));
    LOG_VERBOSE("Login refused: {}", message);
    report(&ServerDelegate::didFinishLoggingInWithResult,
           ServerResult<QJsonObject>(ErrorResponse::fromMessage(message)));
}

void ServerManagerHTTP::didFailLoggingInWithError(const QString& description) {
    LOG_VERBOSE("Login failed: {}", description);
    ErrorResponsePtr error = ErrorResponse::fromMessage(description);
    error->isServerError = true;
    report(&ServerDelegate::didFinishLoggingInWithResult, ServerResult<QJsonObject>(error));
}

void ServerManagerHTTP::loadPermissionsWithUserId(qint32 userId) {
    startServiceCall(
        addresses_.kBaseUrlPermissions, withToken({{QStringLiteral("user_id"), userId}}),
        [this](const QJsonValue& answer) { didFinishLoadingPermissions(answer); },
        failureHandler<Permissions>(&ServerDelegate::didFinishLoadingPermissionsWithResult));
}

void ServerManagerHTTP::didFinishLoadingPermissions(const QJsonValue& answer) {
    report(&ServerDelegate::didFinishLoadingPermissionsWithResult,
           ServerResult<Permissions>(Permissions::fromRoot(rootOf(answer))));
}

void ServerManagerHTTP::loadMediaLibraryCategories() {
    constexpr auto method = &ServerDelegate::didFinishLoadingMediaLibraryCategories;
    startServiceCall(addresses_.kBaseUrlCategories,
                     withToken({{QStringLiteral("section"), QStringLiteral("media_type")}}),
                     listHandler<MediaLibraryCategory>(QStringLiteral("media_type"), method),
                     failureHandler<MediaLibraryCategoryList>(method));
}

void ServerManagerHTTP::loadCreditsForCategory(const MediaLibraryCategoryPtr& category) {
    constexpr auto method = &ServerDelegate::didFinishLoadingCreditsForCategory;
    const qint32 categoryId = category ? category->ID : 0;
    startServiceCall(
        addresses_.kBaseUrlCategories,
        withToken({{QStringLiteral("section"), QStringLiteral("media_attribute_type")},
                   {QStringLiteral("where"), QStringLiteral("media_type_idEQ%1").arg(categoryId)},
                   {QStringLiteral("order_by"), QStringLiteral("sort_order")}}),
        listHandler<Credit>(QStringLiteral("media_attribute_type"), method),
        failureHandler<CreditList>(method));
}

void ServerManagerHTTP::loadProjectList() {
    constexpr auto method = &ServerDelegate::didFinishLoadingProjectList;
    startServiceCall(addresses_.kBaseUrlCategories,
                     withToken({{QStringLiteral("section"), QStringLiteral("project")}}),
                     listHandler<Project>(QStringLiteral("project"), method),
                     failureHandler<ProjectList>(method));
}

void ServerManagerHTTP::loadFoldersForProject(const ProjectPtr& project) {
    constexpr auto method = &ServerDelegate::didFinishLoadingFoldersForProject;
    const qint32 projectId = project ? project->ID : 0;
    startServiceCall(
        addresses_.kBaseUrlCategories,
        withToken({{QStringLiteral("section"), QStringLiteral("project_category")},
                   {QStringLiteral("where"), QStringLiteral("project_idEQ%1").arg(projectId)},
                   {QStringLiteral("order_by"), QStringLiteral("sort_order")}}),
        listHandler<Folder>(QStringLiteral("project_category"), method),
        failureHandler<FolderList>(method));
}
