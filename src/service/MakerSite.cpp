#include "service/MakerSite.h"

#include "BuildInfo.h"
#include "platform/UserDefaultsManager.h"

const ConfiguredHost& MakerSite::configuredHost() {
    static const ConfiguredHost host{"ORVALE_MAKER_SITE", QStringLiteral("MakerSiteHost"),
                                     QLatin1String(BuildInfo::makerSiteHost)};
    return host;
}

bool MakerSite::isConfigured() { return current().hasHost(); }

MakerSite MakerSite::current() {
    return MakerSite(configuredHost().resolve(UserDefaultsManager::sharedInstance().settings()));
}
