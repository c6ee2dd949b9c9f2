#include "model/SourceButtonStates.h"

SourceButtonStates::State SourceButtonStates::projectButton(const Session& session) {
    return sourceState(session, session.hasProjectsAccess, QStringLiteral("a project folder"));
}

SourceButtonStates::State SourceButtonStates::mediaLibButton(const Session& session) {
    return sourceState(session, session.hasMediaLibAccess, QStringLiteral("the media library"));
}

SourceButtonStates::State SourceButtonStates::sourceState(const Session& session, bool hasAccess,
                                                          const QString& destination) {
    if (!session.signedIn) {
        return {false, QStringLiteral("Sign in first to upload to %1").arg(destination)};
    }
    if (!session.rightsError.isEmpty()) {
        return {false, QStringLiteral("Your upload rights could not be loaded: %1")
                           .arg(session.rightsError)};
    }
    if (!session.rightsLoaded) {
        return {false, QStringLiteral("Checking your upload rights...")};
    }
    if (!hasAccess) {
        return {false, QStringLiteral("Your account may not upload to %1").arg(destination)};
    }
    return {true, QStringLiteral("Upload to %1").arg(destination)};
}

QString SourceButtonStates::userButtonTitle(const QString& signedInUsername) {
    return signedInUsername.isEmpty() ? QStringLiteral("Sign in") : signedInUsername;
}
