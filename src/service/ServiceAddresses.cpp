#include "service/ServiceAddresses.h"

namespace {

const QString kHttps = QStringLiteral("https://");
const QString kHttp = QStringLiteral("http://");

QString siteUrl(const QString& address) {
    // An address typed with "http://" already says what we would add.
    if (address.startsWith(kHttps, Qt::CaseInsensitive) ||
        address.startsWith(kHttp, Qt::CaseInsensitive)) {
        return address;
    }
    return kHttp + address;
}

}  // namespace

ServiceAddresses ServiceAddresses::fromServiceAddress(const QString& address) {
    ServiceAddresses addresses;
    addresses.kBaseUrl = siteUrl(address) + QStringLiteral("/api");
    addresses.kBaseUrlOrvale = addresses.kBaseUrl + QStringLiteral("/orvale");
    addresses.kBaseUrlMain = addresses.kBaseUrl + QStringLiteral("/main");
    addresses.kBaseUrlLogin = addresses.kBaseUrlOrvale + QStringLiteral("/get_token/");
    addresses.kBaseUrlPermissions = addresses.kBaseUrlOrvale + QStringLiteral("/get_permissions");
    addresses.kBaseUrlCategories = addresses.kBaseUrlMain + QStringLiteral("/select_all/");
    addresses.kBaseUrlUploadProjectFile =
        addresses.kBaseUrlOrvale + QStringLiteral("/put_project_file/");
    addresses.kBaseUrlUploadMediaLibFile =
        addresses.kBaseUrlOrvale + QStringLiteral("/put_media_library/");
    return addresses;
}
