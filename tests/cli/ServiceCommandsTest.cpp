#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>

#include "support/CliRun.h"
#include "support/ServiceProcess.h"

namespace {

class ServiceCommands : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(service.isRunning()) << service.errorString().toStdString();
    }

    CliRun catalogue(const QStringList& list) {
        return CliRun::run(
            QStringList{"catalogue", "--server", service.host(), "--user", "bob"} + list,
            withPassword("builder"), 30000);
    }

    ServiceProcess service;
};

}  // namespace

TEST_F(ServiceCommands, CatalogueListsPrintOneEntryALineWithFoldersAsATreeOrAsJson) {
    const QList<QPair<QStringList, QString>> cases = {
        {{"projects"}, "Alpha (43)\nbeta (42)\ngamma (44)\n"},
        {{"folders", "42"}, "A (101)\n  D (104)\n  C (103)\n    E (105)\nB (102)\n"},
        {{"categories"}, "Footage (1, active)\nInterviews (2, active)\nArchive (3, inactive)\n"},
        {{"credits", "1"}, "Director (3, active)\nCamera (12, active)\n"},
        // As JSON, the records' fields come in a fixed order.
        {{"folders", "44", "--json"},
         "[\n  {\"id\": 121, \"name\": \"Top\", \"parentID\": -1, \"depthIndex\": 0}\n]\n"},
        {{"credits", "2", "--json"},
         "[\n"
         "  {\"id\": 5, \"name\": \"Interviewer\", \"status\": \"active\"},\n"
         "  {\"id\": 6, \"name\": \"Location\", \"status\": \"inactive\"}\n"
         "]\n"},
        {{"folders", "999", "--json"}, "[]\n"},
    };
    for (const auto& [list, expected] : cases) {
        SCOPED_TRACE(list.join(' ').toStdString());
        const CliRun run = catalogue(list);
        EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
        EXPECT_EQ(QString::fromUtf8(run.out), expected);
    }
}

TEST_F(ServiceCommands, LoginShowsTheRightsMovesLaterCallsToV2AndKeepsThePasswordNowhere) {
    const CliRun run = CliRun::run({"login", "--server", service.host(), "--user", "alice", "--v2"},
                                   withPassword("wonder&land=1"), 30000);
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_EQ(
        QString::fromUtf8(run.out),
        "Logged in to " + service.host() +
            " as alice (user 7)\nUpload to projects: yes\nUpload to the media library: yes\n");
    QStringList prefixes;
    for (const QJsonObject& request : service.requests()) {
        prefixes << request["endpoint"].toString() + ' ' + request["prefix"].toString();
    }
    EXPECT_EQ(prefixes, (QStringList{"get_token ", "get_permissions /v2"}));
    // The password ends up in no file of the user.
    const QStringList roots{qEnvironmentVariable("HOME"), qEnvironmentVariable("XDG_DATA_HOME"),
                            qEnvironmentVariable("XDG_CONFIG_HOME")};
    for (const QString& root : roots) {
        QDirIterator it(root, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            QFile file(it.next());
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            EXPECT_FALSE(file.readAll().contains("wonder&land")) << file.fileName().toStdString();
        }
    }
}

TEST_F(ServiceCommands, FailuresTellTheServicesReasonAndUsageErrorsTheirOwn) {
    struct Case {
        QStringList arguments;
        QProcessEnvironment environment;
        int exitCode;
        QString inError;
    };
    const QString host = service.host();
    const QStringList login{"catalogue", "--server", host, "--user", "bob"};
    const QList<Case> cases = {
        {login + QStringList{"projects"}, withPassword("wrong"), 3,
         "Invalid username or password."},
        {login + QStringList{"projects"}, withPassword(""), 2, "ORVALE_PASSWORD"},
        {login + QStringList{"projects", "--password", "builder"}, withPassword("builder"), 2,
         "password"},
        {login + QStringList{"folders", "forty-two"}, withPassword("builder"), 2, "forty-two"},
        {login + QStringList{"folders"}, withPassword("builder"), 2, "one ID"},
        {login + QStringList{"everything"}, withPassword("builder"), 2, "everything"},
        {{"catalogue", "--user", "bob", "projects"}, withPassword("builder"), 2, "--server"},
        {{"login", "--server", host}, withPassword("builder"), 2, "--user"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.arguments.join(' ').toStdString());
        const CliRun run = CliRun::run(c.arguments, c.environment, 30000);
        EXPECT_EQ(run.exitCode, c.exitCode);
        EXPECT_TRUE(run.err.contains(c.inError)) << run.err.toStdString();
        EXPECT_TRUE(run.out.isEmpty());
    }
    // Only the one attempt with a password got as far as the service.
    EXPECT_EQ(service.requests().size(), 1);
}
