#include <gtest/gtest.h>

#include "model/SourceButtonStates.h"

// Signing out and in with each set of rights is the upload screens' test; these are the states
// the service has to be slow or failing for.
TEST(SourceButtonStates, EachSourceOpensOnlyForASignedInUserWithItsRight) {
    using Session = SourceButtonStates::Session;
    // A source opens exactly when its tip offers the upload.
    const std::tuple<Session, QString, QString> cases[] = {
        {{true, false, {}, false, false},
         "Checking your upload rights...",
         "Checking your upload rights..."},
        {{true, false, "Timed out", true, true},
         "Your upload rights could not be loaded: Timed out",
         "Your upload rights could not be loaded: Timed out"},
        {{true, true, {}, false, true},
         "Your account may not upload to a project folder",
         "Upload to the media library"},
    };
    for (const auto& [session, projectTip, mediaLibTip] : cases) {
        const auto project = SourceButtonStates::projectButton(session);
        const auto library = SourceButtonStates::mediaLibButton(session);
        EXPECT_EQ(project.toolTip, projectTip);
        EXPECT_EQ(project.enabled, projectTip.startsWith("Upload to"));
        EXPECT_EQ(library.toolTip, mediaLibTip);
        EXPECT_EQ(library.enabled, mediaLibTip.startsWith("Upload to"));
    }
}
