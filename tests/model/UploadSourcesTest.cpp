#include <gtest/gtest.h>

#include "model/SourceButtonStates.h"
#include "model/TitleBarLayout.h"

TEST(SourceButtonStates, EachSourceOpensOnlyForASignedInUserWithItsRight) {
    using Session = SourceButtonStates::Session;
    struct Case {
        Session session;
        bool projects;
        QString projectTip;
        bool mediaLibrary;
        QString mediaLibTip;
    };
    const Case cases[] = {
        {{false, false, {}, true, true},
         false, "Sign in first to upload to a project folder",
         false, "Sign in first to upload to the media library"},
        {{true, false, {}, false, false},
         false, "Checking your upload rights...",
         false, "Checking your upload rights..."},
        {{true, false, "Timed out", true, true},
         false, "Your upload rights could not be loaded: Timed out",
         false, "Your upload rights could not be loaded: Timed out"},
        {{true, true, {}, true, false},
         true, "Upload to a project folder",
         false, "Your account may not upload to the media library"},
        {{true, true, {}, false, true},
         false, "Your account may not upload to a project folder",
         true, "Upload to the media library"},
    };
    for (const Case& c : cases) {
        const auto project = SourceButtonStates::projectButton(c.session);
        const auto library = SourceButtonStates::mediaLibButton(c.session);
        EXPECT_EQ(project.enabled, c.projects) << c.projectTip;
        EXPECT_EQ(project.toolTip, c.projectTip);
        EXPECT_EQ(library.enabled, c.mediaLibrary) << c.mediaLibTip;
        EXPECT_EQ(library.toolTip, c.mediaLibTip);
    }
    EXPECT_EQ(SourceButtonStates::userButtonTitle(""), "Sign in");
    EXPECT_EQ(SourceButtonStates::userButtonTitle("alice"), "alice");
}

TEST(TitleBarLayout, TheUserButtonEndsAtTheStripsRightMarginAndNeverLeavesIt) {
    EXPECT_EQ(TitleBarLayout::userButtonFrame({914, 38}, 100), QRectF(802, 4, 100, 26));
    EXPECT_EQ(TitleBarLayout::userButtonFrame({80, 38}, 100), QRectF(0, 4, 100, 26));
}
