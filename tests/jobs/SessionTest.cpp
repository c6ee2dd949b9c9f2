#include <gtest/gtest.h>

#include "support/RecordingSink.h"
#include "support/ServiceRecords.h"
#include "support/SessionHarness.h"

using namespace NotificationNames;
using ServiceRecords::contentsOf;

TEST(Session, ARefusedLoginLeavesNoSessionAndASuccessfulOneLastsUntilLogout) {
    SessionHarness session;
    ASSERT_TRUE(session.service.isRunning()) << session.service.errorString().toStdString();
    EXPECT_FALSE(session.logIn("bob", "wrong"));
    EXPECT_FALSE(session.manager.loggedinUser());
    EXPECT_FALSE(session.manager.holdsTempPwd());  // the password is dropped

    session.manager.loginWithOrvaleUrl(session.service.host(), "bob", "builder", false);
    EXPECT_TRUE(session.manager.holdsTempPwd());  // until the answer is in
    EXPECT_FALSE(session.manager.shouldAutoLogin());

    const UserPtr user = session.waitFor(kNotificationDidFinishLoggingIn).object.value<UserPtr>();
    ASSERT_TRUE(user);
    EXPECT_EQ(user, session.manager.loggedinUser());
    EXPECT_EQ(user->ID, 8);  // "user_id" of the answer
    EXPECT_EQ(user->username, "bob");
    EXPECT_EQ(user->orvaleUrl, session.service.host());
    EXPECT_FALSE(session.manager.tempUser());
    EXPECT_FALSE(session.manager.holdsTempPwd());
    EXPECT_TRUE(session.manager.shouldAutoLogin());
    EXPECT_EQ(session.manager.serverManager().authToken(), "bob-fixed-token");

    // Logging out ends the session; later calls go without a token.
    session.manager.logout();
    EXPECT_EQ(session.log.count(kNotificationDidFinishLoggingOut), 1);
    EXPECT_FALSE(session.manager.loggedinUser());
    EXPECT_FALSE(session.manager.shouldAutoLogin());
    session.manager.loadProjectList();
    const auto error =
        session.waitFor(kNotificationDidFailLoadingProjectList).object.value<ErrorResponsePtr>();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->message, "Expected status code in (200-299), got 401");
    const QJsonArray pairs = session.service.requestsTo("select_all").value(0)["pairs"].toArray();
    EXPECT_TRUE(pairs.contains(QJsonObject{{"name", "auth_token"}, {"value", ""}}));
}

TEST(Session, RememberingKeepsSiteAndNameButThePasswordGoesNowhere) {
    for (const bool remember : {true, false}) {
        SCOPED_TRACE(remember);
        SessionHarness session;
        ScopedLogRecorder recorder;
        ASSERT_TRUE(session.logIn("alice", "wonder&land=1", remember));

        const auto remembered = session.defaults.rememberedUser();
        EXPECT_EQ(remembered.has_value(), remember);
        if (remembered) {
            EXPECT_EQ(remembered->orvaleUrl, session.service.host());
            EXPECT_EQ(remembered->username, "alice");
            // and a new run reads it back
            EXPECT_EQ(UserDefaultsManager(session.settingsFile()).rememberedUser()->username,
                      "alice");
        }
        EXPECT_FALSE(contentsOf(session.settingsFile()).contains("wonder"));
        EXPECT_FALSE(recorder.sink().contains("wonder"));
    }
}

TEST(Session, TheSecondGenerationFollowsTheSessionsSiteUntilTheNextLogin) {
    SessionHarness session;
    ASSERT_TRUE(session.logIn("bob", "builder"));
    session.manager.setIsUsingV2(true);
    session.manager.loadProjectList();
    session.waitFor(kNotificationDidFinishLoadingProjectList);

    session.log.received.clear();
    ASSERT_TRUE(session.logIn("bob", "builder"));
    EXPECT_FALSE(session.manager.isUsingV2());
    session.manager.loadProjectList();
    session.waitFor(kNotificationDidFinishLoadingProjectList);

    QStringList generations;
    for (const QJsonObject& request : session.service.requests()) {
        generations << request["endpoint"].toString() + ' ' + request["prefix"].toString();
    }
    EXPECT_EQ(generations,
              (QStringList{"get_token ", "select_all /v2", "get_token ", "select_all "}));
}

TEST(Session, AStoredChoiceOfTheSecondGenerationWaitsForASite) {
    SessionHarness session({.serviceArguments = {}, .shouldUseV2 = true});
    EXPECT_TRUE(session.manager.isUsingV2());
    EXPECT_FALSE(session.manager.serverManager().addresses().isSet());
    session.manager.loadProjectList();
    const auto error =
        session.waitFor(kNotificationDidFailLoadingProjectList).object.value<ErrorResponsePtr>();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->message, ServerManagerHTTP::kNoServiceAddressMessage);
}
