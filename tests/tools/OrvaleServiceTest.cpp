#include <gtest/gtest.h>
#include <httplib.h>

#include <QJsonArray>
#include <QJsonObject>

#include "support/ServiceProcess.h"

namespace {

const char* kForm = "application/x-www-form-urlencoded";

httplib::Client clientFor(const ServiceProcess& service) {
    httplib::Client client("127.0.0.1", service.port());
    client.set_read_timeout(5, 0);
    return client;
}

// One text part; what the app's multipart bodies hold is the transport's test.
const std::string kUpload =
    "--b0und\r\nContent-Disposition: form-data; name=\"a\"\r\n\r\nx\r\n--b0und--\r\n";
const std::string kMultipart = "multipart/form-data; boundary=b0und";

// A test with an orvale-service of its own, reached by a plain HTTP client.
class OrvaleService : public testing::Test {
protected:
    explicit OrvaleService(const QStringList& arguments = {}) : service(arguments) {}
    void SetUp() override {
        ASSERT_TRUE(service.isRunning()) << service.errorString().toStdString();
    }

    ServiceProcess service;
    httplib::Client client = clientFor(service);
};

class OrvaleServiceReadingSlowly : public OrvaleService {
protected:
    OrvaleServiceReadingSlowly() : OrvaleService({"--read-timeout", "300"}) {}
};

}  // namespace

// A value that is not free text ends at the next "&": "extra" stands on its own.
TEST_F(OrvaleService, AMalformedLoginIsRefusedWithEachProblemNamed) {
    auto result = client.Post("/api/orvale/get_token/",
                              "output_format=json&extra=1&output_format=json", kForm);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, 400);
    QStringList problems;
    for (const QJsonValue& problem : service.requests().last().value("problems").toArray()) {
        problems << problem.toString();
    }
    EXPECT_EQ(problems.size(), 4) << problems.join('|').toStdString();
    EXPECT_TRUE(problems.join('|').contains("unexpected pair \"extra\""));
    EXPECT_TRUE(problems.join('|').contains("\"output_format\" is sent more than once"));
    EXPECT_TRUE(problems.join('|').contains("missing pair \"connect_pw\""));
}

TEST_F(OrvaleServiceReadingSlowly, ContentLengthOrFramingThatIsOffIsCaught) {
    const std::string& body = kUpload;
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
