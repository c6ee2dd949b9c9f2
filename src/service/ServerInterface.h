#pragma once

#include <QString>

#include "model/MediaLibraryCategory.h"
#include "model/Project.h"

// What the job manager asks of the service client. Every call reports once, through the
// client's ServerDelegate, on the main thread.
class ServerInterface {
public:
    virtual ~ServerInterface() = default;

    virtual void loginWithUsername(const QString& username, const QString& password) = 0;
    virtual void loadPermissionsWithUserId(qint32 userId) = 0;
    virtual void loadMediaLibraryCategories() = 0;
    virtual void loadCreditsForCategory(const MediaLibraryCategoryPtr& category) = 0;
    virtual void loadProjectList() = 0;
    virtual void loadFoldersForProject(const ProjectPtr& project) = 0;
};
