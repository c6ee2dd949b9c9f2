#include <gtest/gtest.h>

#include "support/SessionHarness.h"

using namespace NotificationNames;

// What the lists hold is orvale-cli catalogue's to show; here the names they are posted under,
// and the rights an answer leaves.
TEST(CatalogueLoad, PermissionsAndCreditsArePostedAndFailUnderTheirOwnNames) {
    SessionHarness session(
        {.serviceArguments = {"--fault", "get_permissions=status:500,nth:2", "--fault",
                              "select_all:media_attribute_type=status:404,nth:2"}});
    ASSERT_TRUE(session.logIn("bob", "builder"));
    session.manager.loadPermissions();
    session.waitFor(kNotificationDidFinishLoadingPermissions);
    EXPECT_TRUE(session.manager.hasProjectsAccess());
    EXPECT_FALSE(session.manager.hasMediaLibAccess());
    EXPECT_TRUE(session.service.requestsTo("get_permissions")
                    .value(0)["pairs"]
                    .toArray()
                    .contains(QJsonObject{{"name", "user_id"}, {"value", "8"}}));
    auto category = std::make_shared<MediaLibraryCategory>();
    category->ID = 2;
    session.manager.loadCreditsForCategory(category);
    const auto credits = session.waitFor("kNotificationDidFinishLoadngCreditsForCategory")
                             .object.value<CreditList>();
    ASSERT_EQ(credits.size(), 2);
    EXPECT_EQ(credits[0]->name, "Interviewer");

    // Failures keep the earlier rights.
    session.manager.loadPermissions();
    session.manager.loadCreditsForCategory(category);
    const auto error =
        session.waitFor(kNotificationDidFailLoadingPermissions).object.value<ErrorResponsePtr>();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->message, "Expected status code in (200-299), got 500");
    EXPECT_TRUE(session.manager.hasProjectsAccess());
    EXPECT_FALSE(session.manager.hasMediaLibAccess());
    const auto creditsError = session.waitFor("kNotificationDidFailLoadngCreditsForCategory")
                                  .object.value<ErrorResponsePtr>();
    ASSERT_TRUE(creditsError);
    EXPECT_EQ(creditsError->message, "Expected status code in (200-299), got 404");
}
