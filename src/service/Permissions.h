#pragma once

#include <QJsonObject>

// The user's rights on the service as far as this application cares: may they upload into
// projects, into the media library.
struct Permissions {
    // From the "root" of a permissions answer. Rights default to none: an answer without
    // "api_permissions" is a user without rights, not a failure.
    static Permissions fromRoot(const QJsonObject& root);

    bool hasProjectsAccess = false;
    bool hasMediaLibAccess = false;
};
