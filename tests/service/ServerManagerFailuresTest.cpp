#include <gtest/gtest.h>

#include "service/ServerManagerHTTP.h"
#include "support/RecordingServerDelegate.h"
#include "support/ServiceProcess.h"

// Addresses, request building and failure texts of the service client.

TEST(ServerManagerHTTP, AddressesOfBothGenerationsSitBelowTheTypedAddress) {
    ServerManagerHTTP client;
    client.setKBaseUrl("media.example.org/site");
    const ServiceAddresses& a = client.addresses();
    const QString api = "http://media.example.org/site/api";
    EXPECT_EQ(a.kBaseUrl, api);
    EXPECT_EQ(a.kBaseUrlOrvale, api + "/orvale");
    EXPECT_EQ(a.kBaseUrlMain, api + "/main");
    EXPECT_EQ(a.kBaseUrlLogin, api + "/orvale/get_token/");
    EXPECT_EQ(a.kBaseUrlPermissions, api + "/orvale/get_permissions");
    EXPECT_EQ(a.kBaseUrlCategories, api + "/main/select_all/");
    EXPECT_EQ(a.kBaseUrlUploadProjectFile, api + "/orvale/put_project_file/");
    EXPECT_EQ(a.kBaseUrlUploadMediaLibFile, api + "/orvale/put_media_library/");

    const QList<QPair<QString, QString>> schemes = {
        {"media.example.org/v2", "http://media.example.org/v2/api/main/select_all/"},
        {"https://secure.example.org/v2", "https://secure.example.org/v2/api/main/select_all/"},
        {"http://plain.example.org", "http://plain.example.org/api/main/select_all/"},
    };
    for (const auto& [address, categories] : schemes) {
        client.setKBaseUrl(address);
        EXPECT_EQ(client.addresses().kBaseUrlCategories, categories);
    }
}

TEST(ServerManagerHTTP, ActionStringsJoinPairsUnescaped) {
    using Map = std::optional<QVariantMap>;
    const QList<QPair<Map, std::optional<QString>>> cases = {
        {std::nullopt, std::nullopt},
        {QVariantMap{}, QString("")},
        {QVariantMap{{"user_id", 42}}, QString("user_id=42")},
        {QVariantMap{{"connect_pw", "a&b=c d%"}}, QString("connect_pw=a&b=c d%")},
        {QVariantMap{{"a", "1"}, {"b", "2"}}, QString("a=1&b=2")},
    };
    for (const auto& [dictionary, text] : cases) {
        EXPECT_EQ(ServerManagerHTTP::actionStringFromDictionary(dictionary), text);
    }
}

TEST(ServerManagerHTTP, RefusedAnswersFailWithTheTransportsDescription) {
    ServiceProcess service({"--fault", "select_all:project=status:404",     //
                            "--fault", "select_all:media_type=status:500",  //
                            "--fault", "select_all:project_category=type:text/html"});
    ASSERT_TRUE(service.isRunning()) << service.errorString().toStdString();
    RecordingServerDelegate delegate;
    ServerManagerHTTP client;
    client.setDelegate(&delegate);
    client.setKBaseUrl(service.host());
    client.loginWithUsername("bob", "builder");
    ASSERT_TRUE(delegate.waitFor("login").success);

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
}

TEST(ServerManagerHTTP, AFailedLoginRequestIsMarkedAsTheServersError) {
    ServiceProcess service({"--fault", "get_token=status:500"});
    ASSERT_TRUE(service.isRunning()) << service.errorString().toStdString();
    RecordingServerDelegate delegate;
    ServerManagerHTTP client;
    client.setDelegate(&delegate);
    client.setKBaseUrl(service.host());
    client.setAuthToken("earlier");
    client.loginWithUsername("bob", "builder");
    const auto report = delegate.waitFor("login");
    EXPECT_FALSE(report.success);
    ASSERT_TRUE(report.error());
    EXPECT_EQ(report.error()->message, "Expected status code in (200-299), got 500");
    EXPECT_TRUE(report.error()->isServerError);
    EXPECT_EQ(client.authToken(), "earlier");  // only an answer replaces the token
}
