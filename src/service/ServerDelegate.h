#pragma once

#include <QJsonObject>

#include "model/Credit.h"
#include "model/ErrorResponse.h"
#include "model/File.h"
#include "model/Folder.h"
#include "model/MediaLibraryCategory.h"
#include "model/Project.h"
#include "service/Permissions.h"
#include "service/ServerResult.h"

// Reports of the service client, all delivered on the main thread. Every report is optional:
// the defaults do nothing, so a delegate implements only what it wants to hear about. For the
// reports ending in `success`, the flag tells which alternative the result holds.
class ServerDelegate {
public:
    virtual ~ServerDelegate() = default;

    // On success the "root" object of the login answer.
    virtual void didFinishLoggingInWithResult(const ServerResult<QJsonObject>& result,
                                              bool success) {
        (void)result;
        (void)success;
    }
    virtual void didFinishLoadingPermissionsWithResult(const ServerResult<Permissions>& result,
                                                       bool success) {
        (void)result;
        (void)success;
    }
    // Lists come in the service's order.
    virtual void didFinishLoadingMediaLibraryCategories(
        const ServerResult<MediaLibraryCategoryList>& result, bool success) {
        (void)result;
        (void)success;
    }
    virtual void didFinishLoadingProjectList(const ServerResult<ProjectList>& result,
                                             bool success) {
        (void)result;
        (void)success;
    }
    virtual void didFinishLoadingCreditsForCategory(const ServerResult<CreditList>& result,
                                                    bool success) {
        (void)result;
        (void)success;
    }
    // Flat, each folder with its parentID; the tree order is the caller's business.
    virtual void didFinishLoadingFoldersForProject(const ServerResult<FolderList>& result,
                                                   bool success) {
        (void)result;
        (void)success;
    }

    // Uploads: bytes sent since the previous report, each file's end, the batch's end (no
    // error on success).
    virtual void didWriteBytes(quint64 bytes) { (void)bytes; }
    virtual void didFinishUploadingFile(const FilePtr& file, bool success) {
        (void)file;
        (void)success;
    }
    virtual void didFinishUploadingWithResult(const ErrorResponsePtr& error, bool success) {
        (void)error;
        (void)success;
    }
};
