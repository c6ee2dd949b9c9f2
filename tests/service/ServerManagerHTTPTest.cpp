#include <gtest/gtest.h>

#include <QJsonArray>

#include "service/ServerManagerHTTP.h"
#include "support/RecordingServerDelegate.h"
#include "support/ServiceProcess.h"

namespace {

const QString kAlicePassword = QStringLiteral("wonder&land=1");

// The pairs the service read from a request, as sorted "name=value" texts: order-free.
QStringList pairsOf(const QJsonObject& record) {
    QStringList pairs;
    for (const QJsonValue& pair : record.value("pairs").toArray()) {
        pairs << pair["name"].toString() + '=' + pair["value"].toString();
    }
    pairs.sort();
    return pairs;
}

class ServerManagerOverLoopback : public testing::Test {
protected:
    explicit ServerManagerOverLoopback(const QStringList& serviceArguments = {})
        : service(serviceArguments) {}

    void SetUp() override {
        ASSERT_TRUE(service.isRunning()) << service.errorString().toStdString();
        client.setDelegate(&delegate);
        client.setKBaseUrl(service.host());
    }

    RecordingServerDelegate::Report logIn(const QString& user, const QString& password) {
        client.loginWithUsername(user, password);
        return delegate.waitFor("login");
    }

    ServiceProcess service;
    RecordingServerDelegate delegate;
    ServerManagerHTTP client;
};

class ServerManagerAgainstFaults : public ServerManagerOverLoopback {
protected:
    ServerManagerAgainstFaults()
        : ServerManagerOverLoopback({"--fault", "select_all:project=status:404",     //
                                     "--fault", "select_all:media_type=status:500",  //
                                     "--fault", "select_all:project_category=type:text/html",
                                     "--fault", "get_token=status:500,nth:2"}) {}
};

}  // namespace

// The password holds "&" and "=", sent as typed; the login's token goes with every later call.
TEST_F(ServerManagerOverLoopback, EveryCallSendsExactlyItsPairsAsFormText) {
    const auto login = logIn("alice", kAlicePassword);
    ASSERT_TRUE(login.success) << login.error()->message.toStdString();
    const QString token = "auth_token=" + login.value<QJsonObject>()["api_token"].toString();
    EXPECT_EQ("auth_token=" + client.authToken(), token);
    auto category = std::make_shared<MediaLibraryCategory>();
    category->ID = 1;
    auto project = std::make_shared<Project>();
    project->ID = 42;
    client.loadPermissionsWithUserId(7);
    delegate.waitFor("permissions");
    client.loadMediaLibraryCategories();
    delegate.waitFor("categories");
    client.loadCreditsForCategory(category);
    delegate.waitFor("credits");
    client.loadProjectList();
    delegate.waitFor("projects");
    client.loadFoldersForProject(project);
    delegate.waitFor("folders");

    const QString json = "output_format=json";
    const QString sortOrder = "order_by=sort_order";
    const QList<QPair<QString, QStringList>> expected = {
        {"/api/orvale/get_token/", {"connect_pw=" + kAlicePassword, "connect_un=alice", json}},
        {"/api/orvale/get_permissions", {token, json, "user_id=7"}},
        {"/api/main/select_all/", {token, json, "section=media_type"}},
        {"/api/main/select_all/",
         {token, sortOrder, json, "section=media_attribute_type", "where=media_type_idEQ1"}},
        {"/api/main/select_all/", {token, json, "section=project"}},
        {"/api/main/select_all/",
         {token, sortOrder, json, "section=project_category", "where=project_idEQ42"}},
    };
    const QList<QJsonObject> records = service.requests();
    ASSERT_EQ(records.size(), expected.size()) << service.diagnostics().toStdString();
    for (qsizetype i = 0; i < expected.size(); ++i) {
        SCOPED_TRACE(expected[i].second.join('&').toStdString());
        EXPECT_EQ(records[i]["method"].toString(), "POST");
        EXPECT_EQ(records[i]["path"].toString(), expected[i].first);
        EXPECT_EQ(pairsOf(records[i]), expected[i].second);
        EXPECT_EQ(records[i]["headers"]["Content-Type"].toString(),
                  "application/x-www-form-urlencoded");
        EXPECT_TRUE(records[i]["problems"].toArray().isEmpty())
            << records[i]["problems"][0].toString().toStdString();
    }
}

// Refused answers fail with the transport's description; only a failed login request is marked
// as the server's error, and only an answer replaces the token, even one that carries none.
TEST_F(ServerManagerAgainstFaults, RefusedAnswersFailWithTheTransportsDescription) {
    ASSERT_TRUE(logIn("bob", "builder").success);
    client.loadProjectList();
    client.loadMediaLibraryCategories();
    client.loadFoldersForProject(std::make_shared<Project>());
    const QList<QPair<QString, QString>> expected = {
        {"projects", "Expected status code in (200-299), got 404"},
        {"categories", "Expected status code in (200-299), got 500"},
        {"folders",
         "Expected content type (application/json, text/json, text/javascript), got text/html"},
    };
    for (const auto& [method, message] : expected) {
        SCOPED_TRACE(method.toStdString());
        const auto report = delegate.waitFor(method);
        EXPECT_FALSE(report.success);
        ASSERT_TRUE(report.error());
        EXPECT_EQ(report.error()->message, message);
        EXPECT_FALSE(report.error()->isServerError);
    }

    delegate.reports.clear();
    const QString token = client.authToken();
    const auto login = logIn("bob", "builder");
    EXPECT_FALSE(login.success);
    ASSERT_TRUE(login.error());
    EXPECT_EQ(login.error()->message, "Expected status code in (200-299), got 500");
    EXPECT_TRUE(login.error()->isServerError);
    EXPECT_EQ(client.authToken(), token);

    delegate.reports.clear();
    const auto refused = logIn("alice", "wrong");
    ASSERT_TRUE(refused.error());
    EXPECT_EQ(refused.error()->message, "Invalid username or password.");
    EXPECT_FALSE(refused.error()->isServerError);
    EXPECT_TRUE(client.authToken().isEmpty());
}

TEST(ServerManagerHTTP, AddressesOfBothGenerationsSitBelowTheTypedAddress) {
    ServerManagerHTTP client;
    const QList<QPair<QString, QString>> schemes = {
        {"media.example.org/v2", "http://media.example.org/v2/api/main/select_all/"},
        {"https://secure.example.org/v2", "https://secure.example.org/v2/api/main/select_all/"},
        {"http://plain.example.org", "http://plain.example.org/api/main/select_all/"},
    };
    for (const auto& [address, categories] : schemes) {
        client.setKBaseUrl(address);
        EXPECT_EQ(client.addresses().kBaseUrlCategories, categories);
    }
    client.setKBaseUrl("media.example.org/site");
    const QString api = "http://media.example.org/site/api";
    EXPECT_EQ(client.addresses().kBaseUrlUploadProjectFile, api + "/orvale/put_project_file/");
    EXPECT_EQ(client.addresses().kBaseUrlUploadMediaLibFile, api + "/orvale/put_media_library/");
}
