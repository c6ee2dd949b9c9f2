#pragma once

#include <QSettings>
#include <QString>
#include <memory>
#include <optional>

// The few settings kept between runs. Values are read once, at creation, and every change is
// written to disk at once, so a crash right after a change does not lose it.
class UserDefaultsManager {
public:
    static inline const QString kShouldUseV2Key = QStringLiteral("shouldUseV2");
    static inline const QString kUidKey = QStringLiteral("uid");
    static inline const QString kRememberedOrvaleUrlKey = QStringLiteral("rememberedOrvaleUrl");
    static inline const QString kRememberedUsernameKey = QStringLiteral("rememberedUsername");

    // Who asked to be remembered at their last login. Never a password: none is kept anywhere.
    struct RememberedUser {
        QString orvaleUrl;
        QString username;
    };

    // The application's store, named after QCoreApplication's organisation and application:
    // first use must come after those names are set.
    static UserDefaultsManager& sharedInstance();

    // Uses the store at settingsFile (INI format); tests point it at a temporary file.
    explicit UserDefaultsManager(const QString& settingsFile);
    // Takes over an already opened store.
    explicit UserDefaultsManager(std::unique_ptr<QSettings> settings);

    UserDefaultsManager(const UserDefaultsManager&) = delete;
    UserDefaultsManager& operator=(const UserDefaultsManager&) = delete;

    void loadDefaults();

    bool shouldUseV2() const { return shouldUseV2_; }
    void setShouldUseV2(bool shouldUseV2);

    // Set only from outside the application; sent with the promotional-content request.
    std::optional<QString> uid() const;

    std::optional<RememberedUser> rememberedUser() const;
    void setRememberedUser(const RememberedUser& user);

    // For the parts that keep their own keys in the same store (crash reporting).
    QSettings& settings() { return *settings_; }

private:
    std::unique_ptr<QSettings> settings_;
    bool shouldUseV2_ = false;
};
