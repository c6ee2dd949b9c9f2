#include <gtest/gtest.h>

#include <QFile>
#include <QJsonDocument>

#include "support/SessionHarness.h"

using namespace NotificationNames;

namespace {

// Bob with a project whose folders all name each other, or nobody, as parent.
QString fixtureWithoutTopLevel(const QTemporaryDir& dir) {
    const QJsonObject fixture{
        {"users", QJsonArray{QJsonObject{{"id", 8},
                                         {"username", "bob"},
                                         {"password", "builder"},
                                         {"api_token", "bob-fixed-token"}}}},
        {"catalogue",
         QJsonObject{{"project_category",
                      QJsonArray{
                          QJsonObject{{"id", 1}, {"project_id", 50}, {"name", "P"}, {"parent", 2}},
                          QJsonObject{{"id", 2}, {"project_id", 50}, {"name", "Q"}, {"parent", 1}},
                          QJsonObject{{"id", 3}, {"project_id", 50}, {"name", "R"}, {"parent", 9}},
                      }}}},
    };
    const QString path = dir.filePath("no-top-level.json");
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QJsonDocument(fixture).toJson());
    }
    return path;
}

FolderList foldersOfProject(SessionHarness& session, qint32 id) {
    auto project = std::make_shared<Project>();
    project->ID = id;
    session.log.received.clear();
    session.manager.loadFoldersForProject(project);
    return session.waitFor(kNotificationDidFinishLoadingFoldersForProject)
        .object.value<FolderList>();
}

}  // namespace

TEST(CatalogueLoad, PermissionsAskForTheSessionUserAndFailuresKeepTheEarlierRights) {
    SessionHarness session({.serviceArguments = {"--fault", "get_permissions=status:500,nth:2"}});
    ASSERT_TRUE(session.logIn("bob", "builder"));
    session.manager.loadPermissions();
    session.waitFor(kNotificationDidFinishLoadingPermissions);
    EXPECT_TRUE(session.manager.hasProjectsAccess());
    EXPECT_FALSE(session.manager.hasMediaLibAccess());
    EXPECT_TRUE(session.service.requestsTo("get_permissions")
                    .value(0)["pairs"]
                    .toArray()
                    .contains(QJsonObject{{"name", "user_id"}, {"value", "8"}}));

    session.manager.loadPermissions();
    const auto error =
        session.waitFor(kNotificationDidFailLoadingPermissions).object.value<ErrorResponsePtr>();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->message, "Expected status code in (200-299), got 500");
    EXPECT_TRUE(session.manager.hasProjectsAccess());
    EXPECT_FALSE(session.manager.hasMediaLibAccess());
}

TEST(CatalogueLoad, FoldersWithoutATopLevelFolderPostAnEmptyTree) {
    QTemporaryDir dir;
    SessionHarness session({.serviceArguments = {"--fixture", fixtureWithoutTopLevel(dir)}});
    ASSERT_TRUE(session.logIn("bob", "builder"));
    EXPECT_EQ(session.service.requestsTo("get_token").size(), 1);
    EXPECT_TRUE(foldersOfProject(session, 50).isEmpty());
    EXPECT_EQ(session.log.count(kNotificationDidFinishLoadingFoldersForProject), 1);
}

// What the lists hold is orvale-cli catalogue's to show; here the names they are posted under.
TEST(CatalogueLoad, CreditsArePostedAndFailUnderTheirOwnNames) {
    SessionHarness session(
        {.serviceArguments = {"--fault", "select_all:media_attribute_type=status:404,nth:2"}});
    ASSERT_TRUE(session.logIn("bob", "builder"));
    auto category = std::make_shared<MediaLibraryCategory>();
    category->ID = 2;
    session.manager.loadCreditsForCategory(category);
    const auto credits = session.waitFor("kNotificationDidFinishLoadngCreditsForCategory")
                             .object.value<CreditList>();
    ASSERT_EQ(credits.size(), 2);
    EXPECT_EQ(credits[0]->name, "Interviewer");

    session.manager.loadCreditsForCategory(category);
    const auto error = session.waitFor("kNotificationDidFailLoadngCreditsForCategory")
                           .object.value<ErrorResponsePtr>();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->message, "Expected status code in (200-299), got 404");
}
