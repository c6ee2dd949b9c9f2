// The job manager's part in the update check and the promotional content: it only forwards to
// its service client, which posts the outcomes itself.

#include "jobs/DataManager.h"

void DataManager::checkForKestoUpdates() { serverManager_->getUpdateVersionInfo(); }

void DataManager::getAds() {
    serverManager_->postAdsRequest(userDefaultsManager_.uid().value_or(QString()));
}
