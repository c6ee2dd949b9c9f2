#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonObject>

#include "support/CliRun.h"
#include "support/FakeHelper.h"
#include "support/ServiceProcess.h"
#include "support/ServiceRecords.h"
#include "support/TestMedia.h"

using namespace Qt::Literals::StringLiterals;
using namespace ServiceRecords;

namespace {

class UploadCommand : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(service.isRunning()) << service.errorString().toStdString();
    }

    CliRun upload(
        const QStringList& arguments, const QString& user = "bob",
        const QString& password = "builder",
        const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment()) {
        return CliRun::run(
            QStringList{"upload", "--server", service.host(), "--user", user} + arguments,
            withPassword(password, environment), 60000);
    }

    ServiceProcess service;
};

}  // namespace

TEST_F(UploadCommand, UploadsArriveByteForByteWithTheirFieldsAndJsonNamesTheRefused) {
    const QString clip = TestMedia::copyNamed(TestMedia::video(320, 180, 1), "upload clip.mov");
    const QString notes = TestMedia::textFile("upload notes.txt", "not a video\r\n\0binary"_qba);
    const CliRun run = upload({"--folder", "103", "--description", "a=b&c", "--tag", "demo",
                               "--tag", "second tag", "--do-not-encode", clip, notes});

    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_EQ(QString::fromUtf8(run.out), "Uploaded: 2\n");
    const QList<QJsonObject> uploads = service.uploads();
    ASSERT_EQ(uploads.size(), 2) << service.diagnostics().toStdString();
    const QStringList sources{clip, notes};
    for (int i = 0; i < uploads.size(); ++i) {
        SCOPED_TRACE(sources[i].toStdString());
        EXPECT_EQ(uploads[i]["status"].toInt(), 200);
        EXPECT_TRUE(uploads[i]["problems"].toArray().isEmpty());
        EXPECT_EQ(fieldNames(uploads[i]), (QStringList{"auth_token", "description", "folder_id",
                                                       "output_format", "tags[]", "tags[]"}));
        ASSERT_EQ(uploads[i]["files"].toArray().size(), 1);
        EXPECT_EQ(firstFile(uploads[i])["field"].toString(), "media_file");
        EXPECT_EQ(storedContent(firstFile(uploads[i])), contentsOf(sources[i]));
    }

    // As JSON, to the media library: the count, and the files the service refused.
    const CliRun library =
        upload({"--json", "--category", "1", "--credit", "3=Jane Doe", "--credit", "12=", notes},
               "alice", "wonder&land=1");
    EXPECT_EQ(library.exitCode, 0) << library.err.toStdString();
    EXPECT_EQ(library.json().object(), (QJsonObject{{"uploaded", 1}, {"failed", QJsonArray()}}));
    ASSERT_EQ(service.uploads().size(), 3);
    // An empty credit is not sent.
    EXPECT_EQ(fieldNames(service.uploads()[2]),
              (QStringList{"auth_token", "credits_3", "media_type_id", "output_format"}));

    const CliRun refused = upload({"--json", "--folder", "999", notes});
    EXPECT_EQ(refused.exitCode, 1) << refused.err.toStdString();
    EXPECT_EQ(refused.json().object(),
              (QJsonObject{{"uploaded", 0}, {"failed", QJsonArray{notes}}}));
}

// A refused login is the catalogue's to tell; the service sees no request here.
TEST_F(UploadCommand, UsageErrorsUploadNothing) {
    const QString notes = TestMedia::textFile("upload never.txt", "never sent");
    const QList<QPair<QStringList, QString>> cases = {
        {{notes}, "--folder ID or --category ID"},
        {{"--folder", "103", "--category", "1", notes}, "either"},
        {{"--folder", "103", "--credit", "3=x", notes}, "--credit"},
        {{"--category", "1", "--credit", "three=x", notes}, "three=x"},
        {{"--folder", "A", notes}, "number"},
        {{"--folder", "103"}, "no paths"},
    };
    for (const auto& [arguments, inError] : cases) {
        SCOPED_TRACE(arguments.join(' ').toStdString());
        const CliRun run = upload(arguments);
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_TRUE(run.err.contains(inError)) << run.err.toStdString();
        EXPECT_TRUE(run.out.isEmpty());
    }
    EXPECT_TRUE(service.requests().isEmpty());
}

// Either job command stops the transcoder before its encode is removed, and ends with 3; an
// upload names what never went up.
TEST_F(UploadCommand, AFullDiskEndsEitherJobCommandWithThreeAndLeavesNoEncode) {
    FakeHelper helper;
    helper.installFullDiskFfmpeg();
    const QString clip = TestMedia::copyNamed(TestMedia::video(320, 180, 1), "full disk.mov");
    for (const bool isUpload : {true, false}) {
        SCOPED_TRACE(isUpload ? "upload" : "encode");
        CliDataHome home;
        const QProcessEnvironment environment = home.environment(helper.folder());
        const CliRun run =
            isUpload
                ? upload({"--json", "--folder", "103", clip}, "bob", "builder", environment)
                : CliRun::run({"encode", "--out", home.dir.filePath("out"), clip}, environment);
        EXPECT_EQ(run.exitCode, 3) << run.err.toStdString();
        EXPECT_FALSE(run.err.contains("still running")) << run.err.toStdString();
        EXPECT_TRUE(home.encodes().isEmpty());
        if (isUpload) {
            EXPECT_EQ(run.json().object(),
                      (QJsonObject{{"uploaded", 0}, {"failed", QJsonArray{clip}}}));
        } else {
            EXPECT_TRUE(run.err.contains("No space left on device."));
        }
    }
}

// The command has no later retry: nothing of the job stays in the work folder.
TEST(UploadCommandEnd, AFailedBatchLeavesNothingOfTheJobInTheWorkFolder) {
    ServiceProcess service({"--fault", "put_project_file=status:500"});
    CliDataHome home;
    const QString clip = TestMedia::copyNamed(TestMedia::video(320, 180, 1, true), "sent.mov");
    const CliRun run = CliRun::run(
        {"upload", "--server", service.host(), "--user", "bob", "--folder", "103", clip},
        withPassword("builder", home.environment()));
    EXPECT_EQ(run.exitCode, 3) << run.err.toStdString();
    EXPECT_TRUE(home.encodes().isEmpty());
}
