// The service-session half of DataManager: login, API generation, rights and catalogue loads.
#include <algorithm>

#include "jobs/DataManager.h"
#include "jobs/FolderTree.h"
#include "jobs/NotificationNames.h"
#include "model/ValidObjects.h"
#include "platform/Log.h"

using namespace NotificationNames;

namespace {

const QString kV2Suffix = QStringLiteral("/v2");

// The value or the error of a result, as a notification carries it.
template <typename Value>
QVariant objectOf(const ServerResult<Value>& result) {
    return std::visit([](const auto& alternative) { return QVariant::fromValue(alternative); },
                      result);
}

// The login answer names the user by "user_id"; older sites only by "id".
qint32 userIdFrom(const QJsonObject& root) {
    for (const QString& key : {QStringLiteral("user_id"), QStringLiteral("id")}) {
        if (ValidObjects::hasValidObjectForKey(root, key)) {
            return ValidObjects::intForKey(root, key);
        }
    }
    return 0;
}

ProjectList sortedByName(ProjectList projects) {
    std::stable_sort(projects.begin(), projects.end(),
                     [](const ProjectPtr& a, const ProjectPtr& b) {
                         return a->name.compare(b->name, Qt::CaseInsensitive) < 0;
                     });
    return projects;
}

}  // namespace

void DataManager::setUpSession() {
    serverManager_ = std::make_unique<ServerManagerHTTP>();
    serverManager_->setDelegate(this);
    setIsUsingV2(userDefaultsManager_.shouldUseV2());
}

void DataManager::loginWithOrvaleUrl(const QString& orvaleUrl, const QString& username,
                                     const QString& password, bool shouldRememberUser) {
    LOG_VERBOSE("Login to {} as {}", orvaleUrl, username);
    shouldRememberUser_ = shouldRememberUser;
    tempUser_ = std::make_shared<User>();
    tempUser_->username = username;
    tempUser_->orvaleUrl = orvaleUrl;
    serverManager_->setKBaseUrl(orvaleUrl);
    tempPwd_ = password;
    setIsUsingV2(false);
    serverManager_->loginWithUsername(username, password);
}

void DataManager::logout() {
    LOG_VERBOSE("Logout");
    serverManager_->setAuthToken({});
    loggedinUser_.reset();
    tempUser_.reset();
    tempPwd_.reset();
    // The rights were the session's; nobody has them once it is over.
    hasMediaLibAccess_ = false;
    hasProjectsAccess_ = false;
    center_.post(kNotificationDidFinishLoggingOut);
}

void DataManager::setIsUsingV2(bool isUsingV2) {
    isUsingV2_ = isUsingV2;
    if (!isUsingV2) {
        return;
    }
    const UserPtr& user = tempUser_ ? tempUser_ : loggedinUser_;
    if (!user) {
        LOG_VERBOSE("No service address yet; the second API generation waits for a login");
        return;
    }
    serverManager_->setKBaseUrl(user->orvaleUrl + kV2Suffix);
}

void DataManager::loadPermissions() {
    serverManager_->loadPermissionsWithUserId(loggedinUser_ ? loggedinUser_->ID : 0);
}

void DataManager::loadProjectList() { serverManager_->loadProjectList(); }

void DataManager::loadMediaLibraryCategories() { serverManager_->loadMediaLibraryCategories(); }

void DataManager::loadCreditsForCategory(const MediaLibraryCategoryPtr& category) {
    serverManager_->loadCreditsForCategory(category);
}

void DataManager::loadFoldersForProject(const ProjectPtr& project) {
    serverManager_->loadFoldersForProject(project);
}

qint32 DataManager::indexOfParentFolder(qint32 parentID, const FolderList& folders) {
    return FolderTree::indexOfParentFolder(parentID, folders);
}

void DataManager::didFinishLoggingInWithResult(const ServerResult<QJsonObject>& result,
                                               bool success) {
    tempPwd_.reset();
    if (!success) {
        post(kNotificationDidFailLoggingIn, objectOf(result));
        return;
    }
    if (!tempUser_) {
        LOG_VERBOSE("Logged out while the login was under way; its answer is dropped");
        serverManager_->setAuthToken({});
        return;
    }
    const QJsonObject& root = std::get<QJsonObject>(result);
    tempUser_->ID = userIdFrom(root);
    tempUser_->apiToken = serverManager_->authToken();
    loggedinUser_ = std::move(tempUser_);
    LOG_VERBOSE("Logged in as user {}", loggedinUser_->ID);
    rememberUserIfAsked(*loggedinUser_);
    post(kNotificationDidFinishLoggingIn, QVariant::fromValue(loggedinUser_));
}

void DataManager::rememberUserIfAsked(const User& user) {
    if (shouldRememberUser_) {
        userDefaultsManager_.setRememberedUser({user.orvaleUrl, user.username});
    }
}

void DataManager::didFinishLoadingPermissionsWithResult(const ServerResult<Permissions>& result,
                                                        bool success) {
    if (!success) {
        post(kNotificationDidFailLoadingPermissions, objectOf(result));
        return;
    }
    const Permissions& permissions = std::get<Permissions>(result);
    hasMediaLibAccess_ = permissions.hasMediaLibAccess;
    hasProjectsAccess_ = permissions.hasProjectsAccess;
    post(kNotificationDidFinishLoadingPermissions);
}

void DataManager::didFinishLoadingMediaLibraryCategories(
    const ServerResult<MediaLibraryCategoryList>& result, bool success) {
    post(success ? kNotificationDidFinishLoadingMediaLibraryCategories
                 : kNotificationDidFailLoadingMediaLibraryCategories,
         objectOf(result));
}

void DataManager::didFinishLoadingCreditsForCategory(const ServerResult<CreditList>& result,
                                                     bool success) {
    post(success ? kNotificationDidFinishLoadngCreditsForCategory
                 : kNotificationDidFailLoadngCreditsForCategory,
         objectOf(result));
}

void DataManager::didFinishLoadingProjectList(const ServerResult<ProjectList>& result,
                                              bool success) {
    if (!success) {
        post(kNotificationDidFailLoadingProjectList, objectOf(result));
        return;
    }
    post(kNotificationDidFinishLoadingProjectList,
         QVariant::fromValue(sortedByName(std::get<ProjectList>(result))));
}

void DataManager::didFinishLoadingFoldersForProject(const ServerResult<FolderList>& result,
                                                    bool success) {
    if (!success) {
        post(kNotificationDidFailLoadingFoldersForProject, objectOf(result));
        return;
    }
    post(kNotificationDidFinishLoadingFoldersForProject,
         QVariant::fromValue(FolderTree::ordered(std::get<FolderList>(result))));
}
