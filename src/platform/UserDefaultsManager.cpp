#include "platform/UserDefaultsManager.h"

#include "platform/Log.h"

UserDefaultsManager& UserDefaultsManager::sharedInstance() {
    static UserDefaultsManager instance(std::make_unique<QSettings>());
    return instance;
}

UserDefaultsManager::UserDefaultsManager(const QString& settingsFile)
    : UserDefaultsManager(std::make_unique<QSettings>(settingsFile, QSettings::IniFormat)) {}

UserDefaultsManager::UserDefaultsManager(std::unique_ptr<QSettings> settings)
    : settings_(std::move(settings)) {
    loadDefaults();
}

void UserDefaultsManager::loadDefaults() {
    shouldUseV2_ = settings_->value(kShouldUseV2Key, false).toBool();
    LOG_VERBOSE("Loaded shouldUseV2 = {} from {}", shouldUseV2_, settings_->fileName());
}

void UserDefaultsManager::setShouldUseV2(bool shouldUseV2) {
    shouldUseV2_ = shouldUseV2;
    settings_->setValue(kShouldUseV2Key, shouldUseV2);
    settings_->sync();
    if (settings_->status() != QSettings::NoError) {
        LOG_WARNING("Could not write shouldUseV2 to {}", settings_->fileName());
    }
}

std::optional<QString> UserDefaultsManager::uid() const {
    const QVariant value = settings_->value(kUidKey);
    if (!value.isValid() || value.isNull()) {
        return std::nullopt;
    }
    return value.toString();
}

std::optional<UserDefaultsManager::RememberedUser> UserDefaultsManager::rememberedUser() const {
    const QString orvaleUrl = settings_->value(kRememberedOrvaleUrlKey).toString();
    if (orvaleUrl.isEmpty()) {
        return std::nullopt;
    }
    return RememberedUser{orvaleUrl, settings_->value(kRememberedUsernameKey).toString()};
}

void UserDefaultsManager::setRememberedUser(const RememberedUser& user) {
    settings_->setValue(kRememberedOrvaleUrlKey, user.orvaleUrl);
    settings_->setValue(kRememberedUsernameKey, user.username);
    settings_->sync();
    if (settings_->status() != QSettings::NoError) {
        LOG_WARNING("Could not write the remembered user to {}", settings_->fileName());
    }
}
