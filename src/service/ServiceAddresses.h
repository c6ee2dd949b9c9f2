#pragma once

#include <QString>

// The service's endpoints below a service address as the user typed it: a host name, maybe
// with a path, maybe with "https://" in front. Empty until an address is given.
struct ServiceAddresses {
    // Without a scheme the service is reached over plain http, as every site of it has been;
    // a user who typed "https://" gets what they asked for.
    static ServiceAddresses fromServiceAddress(const QString& address);

    bool isSet() const { return !kBaseUrl.isEmpty(); }

    QString kBaseUrl;
    QString kBaseUrlOrvale;
    QString kBaseUrlMain;
    QString kBaseUrlLogin;
    QString kBaseUrlPermissions;
    // Every catalogue read goes here; the body names the section.
    QString kBaseUrlCategories;
    QString kBaseUrlUploadProjectFile;
    QString kBaseUrlUploadMediaLibFile;
};
