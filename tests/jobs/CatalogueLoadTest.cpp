#include <gtest/gtest.h>

#include "support/SessionHarness.h"

using namespace NotificationNames;

// What the lists hold is orvale-cli catalogue's to show; here the names their failures are
// posted under, and the rights a failed answer leaves.
TEST(CatalogueLoad, FailedPermissionsKeepTheEarlierRightsAndEachFailureHasItsOwnName) {
    SessionHarness session(
        {.serviceArguments = {"--fault", "get_permissions=status:500,nth:2", "--fault",
                              "select_all:media_attribute_type=status:404"}});
    ASSERT_TRUE(session.logIn("bob", "builder"));
    session.manager.loadPermissions();
    session.waitFor(kNotificationDidFinishLoadingPermissions);
    EXPECT_TRUE(session.manager.hasProjectsAccess());
    EXPECT_FALSE(session.manager.hasMediaLibAccess());

    session.manager.loadPermissions();
    auto category = std::make_shared<MediaLibraryCategory>();
    session.manager.loadCreditsForCategory(category);
    const auto error =
        session.waitFor(kNotificationDidFailLoadingPermissions).object.value<ErrorResponsePtr>();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->message, "Expected status code in (200-299), got 500");
    EXPECT_TRUE(session.manager.hasProjectsAccess());
    EXPECT_FALSE(session.manager.hasMediaLibAccess());
    const auto creditsError = session.waitFor(kNotificationDidFailLoadngCreditsForCategory)
                                  .object.value<ErrorResponsePtr>();
    ASSERT_TRUE(creditsError);
    EXPECT_EQ(creditsError->message, "Expected status code in (200-299), got 404");
}
