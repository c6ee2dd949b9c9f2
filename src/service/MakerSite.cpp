#include "service/MakerSite.h"

#include "platform/UserDefaultsManager.h"

const ConfiguredHost& MakerSite::configuredHost() {
    static const ConfiguredHost host{"ORVALE_MAKER_SITE", QStringLiteral("MakerSiteHost"),
                                     QStringLiteral("www.brightfold.com")};
    return host;
}

MakerSite MakerSite::current() {
    return MakerSite(configuredHost().resolve(UserDefaultsManager::sharedInstance().settings()));
}
