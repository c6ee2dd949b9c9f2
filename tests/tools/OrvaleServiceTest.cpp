#include <gtest/gtest.h>
#include <httplib.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "support/ServiceProcess.h"

namespace {

const char* kForm = "application/x-www-form-urlencoded";
const char* kBobToken = "bob-fixed-token";  // fixed in the default fixture

httplib::Client clientFor(const ServiceProcess& service) {
    httplib::Client client("127.0.0.1", service.port());
    client.set_read_timeout(5, 0);
    return client;
}

QJsonObject rootOf(const httplib::Result& result) {
    return QJsonDocument::fromJson(QByteArray::fromStdString(result->body))
        .object()
        .value("root")
        .toObject();
}

struct TextField {
    std::string name;
    std::string value;
};

// A body laid out the way the app writes it: each part opened by its boundary line (CRLF in
// front of all but the first), Content-Disposition, a Content-Type for the file, the closing line.
std::string multipartBody(const std::string& boundary, const std::vector<TextField>& fields,
                          const std::string& fileName, const std::string& content) {
    std::string body;
    for (const TextField& field : fields) {
        body += (body.empty() ? "--" : "\r\n--") + boundary + "\r\n";
        body += "Content-Disposition: form-data; name=\"" + field.name + "\"\r\n\r\n" + field.value;
    }
    body += "\r\n--" + boundary + "\r\n";
    body +=
        "Content-Disposition: form-data; name=\"media_file\"; filename=\"" + fileName + "\"\r\n";
    body += "Content-Type: video/mp4\r\n\r\n" + content;
    body += "\r\n--" + boundary + "--\r\n";
    return body;
}

// Bytes that look like the start of a delimiter, and every byte value, inside the file.
std::string awkwardContent() {
    std::string content = "\r\n--Boundary+0\r\n--\r\n\r\n";
    for (int i = 0; i < 70000; ++i) {
        content += static_cast<char>(i % 256);
    }
    return content + "\r\n--Boundary+0123456789ABCDE";
}

const std::string kBoundary = "Boundary+0123456789ABCDEF";
const std::string kMultipart = "multipart/form-data; boundary=" + kBoundary;

std::string projectUpload(const std::string& content) {
    return multipartBody(kBoundary,
                         {{"auth_token", kBobToken},
                          {"folder_id", "103"},
                          {"output_format", "json"},
                          {"tags[]", "one"},
                          {"tags[]", "two"}},
                         "clip 1.mp4", content);
}

}  // namespace

TEST(OrvaleService, LoginTakesAPasswordWithAmpersandAndEqualsAsSentBelowAnyPrefix) {
    ServiceProcess service;
    ASSERT_TRUE(service.isRunning()) << service.errorString().toStdString();
    auto client = clientFor(service);

    auto result =
        client.Post("/site/path/v2/api/orvale/get_token/",
                    "connect_pw=wonder&land=1&output_format=json&connect_un=alice", kForm);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, 200);
    EXPECT_EQ(result->get_header_value("Content-Type"), "application/json");
    const QString token = rootOf(result).value("api_token").toString();
    EXPECT_FALSE(token.isEmpty());

    const QJsonObject record = service.requestsTo("get_token").value(0);
    EXPECT_EQ(record.value("prefix").toString(), "/site/path/v2");
    EXPECT_EQ(record.value("generation").toInt(), 2);
    EXPECT_TRUE(record.value("problems").toArray().isEmpty());
    const QJsonArray pairs = record.value("pairs").toArray();
    ASSERT_EQ(pairs.size(), 3);
    EXPECT_EQ(pairs[0].toObject().value("value").toString(), "wonder&land=1");

    // The token is good for the catalogue.
    const std::string projects =
        "section=project&auth_token=" + token.toStdString() + "&output_format=json";
    result = client.Post("/site/path/v2/api/main/select_all/", projects, kForm);
    ASSERT_TRUE(result);
    EXPECT_EQ(rootOf(result).value("project").toArray().size(), 3);
}

TEST(OrvaleService, RefusedAndMalformedLoginsAreToldApart) {
    ServiceProcess service;
    ASSERT_TRUE(service.isRunning()) << service.errorString().toStdString();
    auto client = clientFor(service);

    auto result = client.Post("/api/orvale/get_token/",
                              "connect_un=alice&connect_pw=wonder&output_format=json", kForm);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, 200);
    EXPECT_EQ(rootOf(result).value("api_token").toString(), "");
    EXPECT_FALSE(rootOf(result).value("message").toString().isEmpty());

    result = client.Post("/api/orvale/get_token/", "connect_un=alice&connect_un=alice", kForm);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, 400);
    const QJsonArray problems = service.requests().last().value("problems").toArray();
    EXPECT_EQ(problems.size(), 3);  // repeated user name, no password, no output_format
}

TEST(OrvaleService, FoldersAreFilteredSortedAndPassedThroughAsInTheFixture) {
    ServiceProcess service;
    ASSERT_TRUE(service.isRunning()) << service.errorString().toStdString();
    auto client = clientFor(service);

    const std::string pairs =
        "section=project_category&where=project_idEQ42&order_by=sort_order"
        "&output_format=json&auth_token=";
    auto result = client.Post("/api/main/select_all/", pairs + kBobToken, kForm);
    ASSERT_TRUE(result);
    const QJsonArray folders = rootOf(result).value("project_category").toArray();
    QStringList names;
    for (const QJsonValue& folder : folders) {
        names << folder.toObject().value("name").toString();
    }
    EXPECT_EQ(names, QStringList({"A", "B", "C", "D", "E"}));
    EXPECT_TRUE(folders[0].toObject().value("parent").isNull());
    EXPECT_EQ(folders[3].toObject().value("parent").toString(), "101");

    result = client.Post("/api/main/select_all/", pairs + "stale", kForm);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, 401);
}

TEST(OrvaleService, MultipartUploadIsStoredByteExactAndIndexed) {
    ServiceProcess service;
    ASSERT_TRUE(service.isRunning()) << service.errorString().toStdString();
    auto client = clientFor(service);
    const std::string content = awkwardContent();

    auto result = client.Post("/api/orvale/put_project_file/", projectUpload(content), kMultipart);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, 200);
    EXPECT_EQ(rootOf(result).value("status").toString(), "success") << result->body;

    const QJsonObject index = service.uploads().value(0);
    EXPECT_TRUE(index.value("framing_ok").toBool());
    EXPECT_TRUE(index.value("length_ok").toBool());
    const QJsonArray fields = index.value("fields").toArray();
    ASSERT_EQ(fields.size(), 5);
    EXPECT_EQ(fields[4].toObject().value("name").toString(), "tags[]");
    EXPECT_EQ(fields[4].toObject().value("value").toString(), "two");
    const QJsonObject file = index.value("files").toArray().at(0).toObject();
    EXPECT_EQ(file.value("filename").toString(), "clip 1.mp4");
    QFile stored(file.value("stored").toString());
    ASSERT_TRUE(stored.open(QIODevice::ReadOnly));
    EXPECT_TRUE(stored.readAll() == QByteArray::fromStdString(content));
}

TEST(OrvaleService, ContentLengthOrFramingThatIsOffIsCaught) {
    ServiceProcess service({"--read-timeout", "300"});
    ASSERT_TRUE(service.isRunning()) << service.errorString().toStdString();
    const std::string body = projectUpload("0123456789");
    const auto post = [&](const std::string& sent, size_t length) {
        auto client = clientFor(service);
        const httplib::Headers headers{{"Content-Length", std::to_string(length)}};
        return client.Post("/api/orvale/put_project_file/", headers, sent, kMultipart.c_str());
    };

    auto tooShort = post(body, body.size() - 4);
    auto tooLong = post(body, body.size() + 4);
    const std::string badClosing = body.substr(0, body.size() - 4) + "xx\r\n";
    auto badClosingLine = post(badClosing, badClosing.size());

    for (const auto* result : {&tooShort, &tooLong, &badClosingLine}) {
        ASSERT_TRUE(*result);
        EXPECT_EQ((*result)->status, 400);
    }
    const QList<QJsonObject> index = service.uploads();
    ASSERT_EQ(index.size(), 3);
    EXPECT_FALSE(index[0].value("length_ok").toBool());
    EXPECT_TRUE(index[0].value("length_error").toString().contains("before the closing"));
    EXPECT_FALSE(index[1].value("length_ok").toBool());
    EXPECT_EQ(index[1].value("received_length").toInt(), static_cast<int>(body.size()));
    EXPECT_FALSE(index[2].value("framing_ok").toBool());
    EXPECT_TRUE(index[2].value("framing_error").toString().contains("neither CRLF"));
}

TEST(OrvaleService, FaultsHitOnlyTheRequestsTheyName) {
    ServiceProcess service({"--fault", "get_permissions=status:500,nth:2", "--fault",
                            "select_all:project=nonjson", "--fault",
                            "select_all:media_type=wrongtype", "--fault", "version=drop:0"});
    ASSERT_TRUE(service.isRunning()) << service.errorString().toStdString();
    auto client = clientFor(service);

    const std::string permissions = "user_id=8&output_format=json&auth_token=bob-fixed-token";
    std::vector<int> statuses;
    for (int i = 0; i < 3; ++i) {
        auto result = client.Post("/api/orvale/get_permissions", permissions, kForm);
        statuses.push_back(result ? result->status : -1);
    }
    EXPECT_EQ(statuses, std::vector<int>({200, 500, 200}));

    const std::string section = "&output_format=json&auth_token=bob-fixed-token";
    auto projects = client.Post("/api/main/select_all/", "section=project" + section, kForm);
    ASSERT_TRUE(projects);
    EXPECT_TRUE(QJsonDocument::fromJson(QByteArray::fromStdString(projects->body)).isNull());
    auto types = client.Post("/api/main/select_all/", "section=media_type" + section, kForm);
    ASSERT_TRUE(types);
    EXPECT_TRUE(rootOf(types).value("media_type").isObject());

    auto dropped = client.Get("/downloads/kesto/version.json");
    EXPECT_FALSE(dropped);
    EXPECT_TRUE(service.requestsTo("version").value(0).value("dropped").toBool());
}

TEST(OrvaleService, SiteAndCrashEndpointsAnswerAndRecord) {
    ServiceProcess service;
    ASSERT_TRUE(service.isRunning()) << service.errorString().toStdString();
    auto client = clientFor(service);

    auto version = client.Get("/downloads/kesto/version.json");
    ASSERT_TRUE(version);
    EXPECT_EQ(version->body, R"({"version":"1.0.0"})");
    auto ad = client.Post("/ads/ad.php", "uid=", kForm);
    ASSERT_TRUE(ad);
    const QJsonObject promo = QJsonDocument::fromJson(QByteArray::fromStdString(ad->body)).object();
    EXPECT_EQ(promo.value("asset").toString(), service.baseUrl() + "/ads/banner.png");

    const std::string description =
        "Crashed on today\nCrashed with exception: (name:a&b, reason:c)\n"
        "Crashed with signal SIGSEGV (code SEGV_MAPERR, address=0x1f)";
    auto report = client.Post("/tarn/cr/api/report/add",
                              "version=v1.0.0.42&description=" + description, kForm);
    ASSERT_TRUE(report);
    EXPECT_EQ(report->status, 200);
    const QJsonArray pairs = service.requestsTo("report_add").value(0).value("pairs").toArray();
    ASSERT_EQ(pairs.size(), 2);
    EXPECT_EQ(pairs[1].toObject().value("value").toString().toStdString(), description);
}
