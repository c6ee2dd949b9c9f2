#pragma once

#include <QString>

// Whether the root screen's upload sources can be used now and, when not, the tooltip saying
// why; the title of the sign-in button in the title strip.
class SourceButtonStates {
public:
    struct Session {
        bool signedIn = false;
        // The user's rights arrived; until then (or after they failed) neither source opens.
        bool rightsLoaded = false;
        // Why the rights did not arrive, as the service said it; empty when they did or wait.
        QString rightsError;
        bool hasProjectsAccess = false;
        bool hasMediaLibAccess = false;
    };
    struct State {
        bool enabled = false;
        QString toolTip;
    };

    static State projectButton(const Session& session);
    static State mediaLibButton(const Session& session);
    // "Sign in" while signed out, else the user's name.
    static QString userButtonTitle(const QString& signedInUsername);

private:
    static State sourceState(const Session& session, bool hasAccess, const QString& destination);
};
