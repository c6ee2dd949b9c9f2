// The service client's calls to the maker's web site: the version document and the
// promotional content. Their answers are read at the top level, without the service's "root".

#include "model/CompareToVersion.h"
#include "model/ErrorResponse.h"
#include "model/ValidObjects.h"
#include "platform/ApplicationInfo.h"
#include "platform/Log.h"
#include "platform/NotificationCenter.h"
#include "service/MakerSite.h"
#include "service/ServerManagerHTTP.h"

namespace {

// Whether the site may be asked; a build and settings without a host contact nobody.
bool siteConfigured(const MakerSite& site, const char* what) {
    if (!site.hasHost()) {
        LOG_INFO("No maker's site is configured: {} is not made", what);
    }
    return site.hasHost();
}

}  // namespace

void ServerManagerHTTP::getUpdateVersionInfo() {
    LOG_VERBOSE("getUpdateVersionInfo");
    const MakerSite site = MakerSite::current();
    if (!siteConfigured(site, "the update check")) {
        return;
    }
    startJsonRequest(
        requestWithURL(site.versionDocumentURL()),
        [this](const QJsonValue& answer) { didFinishLoadingUpdateInfo(answer); },
        [this](const QString& description) { didFailLoadingUpdateInfo(description); });
}

void ServerManagerHTTP::didFinishLoadingUpdateInfo(const QJsonValue& answer) {
    LOG_VERBOSE("didFinishLoadingUpdateInfo");
    const QString remote = ValidObjects::stringForKey(answer.toObject(), QStringLiteral("version"));
    // Without a version there is nothing to compare; an empty text would read as "0".
    if (remote.isEmpty()) {
        return;
    }
    if (CompareToVersion::isNewerThanVersion(remote, ApplicationInfo::current().shortVersion)) {
        LOG_VERBOSE("newVersionAvailable");
        newVersion_ = remote;
        NotificationCenter::defaultCenter().post(MakerSite::kNotificationNewVersionAvailable,
                                                 QVariant::fromValue(this));
    }
}

void ServerManagerHTTP::didFailLoadingUpdateInfo(const QString& description) {
    LOG_VERBOSE("didFailLoadingUpdateInfo: {}", description);
}

void ServerManagerHTTP::postAdsRequest(const QString& identifier) {
    const MakerSite site = MakerSite::current();
    if (!siteConfigured(site, "the promotional request")) {
        return;
    }
    const auto body = actionStringFromDictionary(QVariantMap{{QStringLiteral("uid"), identifier}});
    HttpRequest request = requestWithURL(site.adURL(), "POST", std::nullopt, body);
    LOG_VERBOSE("Loading ad data");
    startJsonRequest(
        std::move(request), [this](const QJsonValue& answer) { didFinishLoadingAdData(answer); },
        [this](const QString& description) { didFailLoadingAdData(description); });
}

void ServerManagerHTTP::didFinishLoadingAdData(const QJsonValue& answer) {
    LOG_VERBOSE("didFinishLoadingAdData");
    const QJsonObject object = answer.toObject();
    const QString asset = ValidObjects::stringForKey(object, QStringLiteral("asset"));
    const QString url = ValidObjects::stringForKey(object, QStringLiteral("url"));
    // A link without an image has nothing to show it on, so it is not passed on either.
    QVariantMap userInfo;
    if (!asset.isEmpty()) {
        userInfo.insert(QStringLiteral("asset"), asset);
        if (!url.isEmpty()) {
            userInfo.insert(QStringLiteral("url"), url);
        }
    }
    NotificationCenter::defaultCenter().post(MakerSite::kNotificationAdReady,
                                             QVariant::fromValue(this), userInfo);
}

void ServerManagerHTTP::didFailLoadingAdData(const QString& description) {
    const ErrorResponsePtr error = ErrorResponse::fromMessage(description);
    LOG_VERBOSE("didFailLoadingAdData ({})", error->message);
}
