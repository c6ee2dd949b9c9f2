#pragma once

#include <QMetaType>
#include <QString>
#include <memory>

// The credentials of a service session, filled from the login form.
struct User {
    using Ptr = std::shared_ptr<User>;

    User() = default;
    User(const User&) = delete;
    User& operator=(const User&) = delete;

    qint32 ID = 0;
    // The user's service site: a host name, optionally with a path, without scheme.
    QString orvaleUrl;
    QString username;
    // The service client keeps the live token; this one is for callers that need to carry it.
    QString apiToken;
};

using UserPtr = User::Ptr;

Q_DECLARE_METATYPE(UserPtr)
