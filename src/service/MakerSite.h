#pragma once

#include <QLatin1String>
#include <QSettings>
#include <QString>

#include "platform/ConfiguredHost.h"

// The maker's public web site: the version document, the promotional content, and the pages
// opened in the browser. All of them live on one host, reached over plain http; the host is
// $ORVALE_MAKER_SITE, else the settings key "MakerSiteHost", else this build's default, which is
// none unless the build was told one. Without a host nothing is asked of the site and no page of
// it is offered.
class MakerSite {
public:
    static inline const QString kVersionDocumentPath =
        QStringLiteral("/downloads/kesto/version.json");
    static inline const QString kAdPath = QStringLiteral("/ads/ad.php");
    static inline const QString kHelpPath = QStringLiteral("/encoding-center/kesto");
    static inline const QString kDemoPath = QStringLiteral("/demo");
    // Where a newer release can be had: the folder of the version document.
    static inline const QString kDownloadPath = QStringLiteral("/downloads/kesto");

    // Posted by the service client with itself as the object.
    static constexpr QLatin1String kNotificationNewVersionAvailable{
        "kNotificationNewVersionAvailable"};
    // User info: "asset" (the image's address) and "url" (where a click goes), each only when
    // the answer had it.
    static constexpr QLatin1String kNotificationAdReady{"kNotificationAdReady"};

    static const ConfiguredHost& configuredHost();
    // The host as configured for the application now.
    static MakerSite current();
    // Whether the application may contact the maker's site at all (and show what comes from it).
    static bool isConfigured();

    explicit MakerSite(QString host) : m_host(std::move(host)) {}

    const QString& host() const { return m_host; }
    // A build or user may name no site at all (nothing, or "none"): then nothing is fetched from it
    // and no page of it is offered.
    bool hasHost() const {
        return !m_host.isEmpty() && m_host.compare(QLatin1String("none"), Qt::CaseInsensitive) != 0;
    }
    QString versionDocumentURL() const {
        return ConfiguredHost::address(m_host, kVersionDocumentPath);
    }
    QString adURL() const { return ConfiguredHost::address(m_host, kAdPath); }
    QString helpURL() const { return ConfiguredHost::address(m_host, kHelpPath); }
    QString demoURL() const { return ConfiguredHost::address(m_host, kDemoPath); }
    QString downloadURL() const { return ConfiguredHost::address(m_host, kDownloadPath); }

private:
    QString m_host;
};
