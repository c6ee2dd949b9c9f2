#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>

#include "service/ServerManagerHTTP.h"
#include "support/JobFiles.h"
#include "support/JobHarness.h"
#include "support/ServiceProcess.h"
#include "support/ServiceRecords.h"
#include "support/TestMedia.h"

using namespace NotificationNames;
using namespace ServiceRecords;

namespace {

class UploadJob : public testing::Test, protected JobHarness {
protected:
    UploadJob()
        : JobHarness({kNotificationDidFinishUploading, kNotificationDidFailUploading,
                      kNotificationDidFinishLoggingIn, kNotificationDidChangeUploadedBytes}) {}
    void start(const QStringList& serviceArguments = {}) {
        service = std::make_unique<ServiceProcess>(serviceArguments);
        ASSERT_TRUE(service->isRunning()) << service->errorString().toStdString();
        manager.setByteLinesToStandardOutput(false);
        manager.loginWithOrvaleUrl(service->host(), "bob", "builder", false);
        ASSERT_TRUE(waitUntil([&] { return log.count(kNotificationDidFinishLoggingIn) == 1; }));
    }
    // Types like these are never probed (ffprobe would even take a large text for ANSI art).
    static FilePtr passThrough(const QString& name, const QByteArray& content) {
        return std::make_shared<File>(QUrl::fromLocalFile(TestMedia::textFile(name, content)));
    }
    QString failureMessage() {
        return waitFor(kNotificationDidFailUploading).object.value<ErrorResponsePtr>()->message;
    }

    std::unique_ptr<ServiceProcess> service;
    const QVariantMap toFolder{
        {"folder", 103}, {"description", "trip"}, {"tags", QStringList{"sea", "sky"}}};
};

}  // namespace

// Two videos of one name encode apart and both arrive under that name.
TEST_F(UploadJob, EncodedAndPassThroughFilesReachTheServiceByteForByte) {
    start();
    const FilePtr text = passThrough("upload-notes.nfo", QByteArray(100000, 'n'));
    const FileList videos = {
        probedFile(TestMedia::copyNamed(TestMedia::video(320, 180, 1, true), "upload-video.mov")),
        probedFile(TestMedia::copyNamed(TestMedia::video(320, 240, 2, true), "upload-video.avi"))};
    manager.startUploadProcessForFiles(videos + FileList{text}, toFolder, false);
    ASSERT_TRUE(waitForAny());

    EXPECT_EQ(log.count(kNotificationDidFinishUploading), 1);
    EXPECT_EQ(manager.uploadedFilesCount(), 3);
    EXPECT_TRUE(manager.failedFiles().isEmpty());
    EXPECT_NE(videos[0]->videoDetail->encodedVideoUrl, videos[1]->videoDetail->encodedVideoUrl);
    // The accepted encode is gone from the work folder; the source is untouched.
    EXPECT_FALSE(QFile::exists(videos[0]->videoDetail->encodedVideoUrl.toLocalFile()));
    EXPECT_TRUE(QFile::exists(videos[0]->path()));

    const QList<QJsonObject> uploads = service->uploads();
    ASSERT_EQ(uploads.size(), 3);
    for (const QJsonObject& upload : uploads) {  // framing and length problems among them
        EXPECT_TRUE(upload.value("problems").toArray().isEmpty())
            << QJsonDocument(upload).toJson().toStdString();
    }
    // The pass-through file went first, at once, while the videos were encoding.
    const QJsonObject first = firstFile(uploads.first());
    EXPECT_EQ(first.value("filename").toString(), "upload-notes.nfo");
    EXPECT_EQ(storedContent(first), contentsOf(text->path()));
    for (int i = 0; i < 2; ++i) {
        const QJsonObject video = firstFile(uploads[i + 1]);
        EXPECT_EQ(video.value("filename").toString(), "upload-video.mp4");
        EXPECT_EQ(video.value("size").toDouble(), videos[i]->videoDetail->encodedSize);
    }
}

// A file gone before its turn, or whose answer is not JSON, fails alone and the job goes on.
TEST_F(UploadJob, EmptyFilesGoUpAndAFileGoneOrRefusedFailsAloneWithItsReason) {
    start({"--fault", "put_project_file=nonjson,nth:2"});
    const FileList files = {passThrough("empty.txt", ""), passThrough("gone.txt", "gone"),
                            passThrough("refused.txt", "r"), passThrough("kept.txt", "k")};
    manager.startUploadProcessForFiles(files, toFolder, false);
    QFile::remove(files[1]->path());
    ASSERT_TRUE(waitForAny());

    EXPECT_EQ(log.count(kNotificationDidFinishUploading), 1);
    EXPECT_EQ(manager.uploadedFiles(), (FileList{files[0], files[3]}));
    EXPECT_EQ(manager.failedFiles(), (FileList{files[1], files[2]}));
    EXPECT_EQ(files[1]->failureReason,
              "Cannot read " + files[1]->path() + ": No such file or directory");
    EXPECT_EQ(service->requestsTo("put_project_file").size(), 3);
}

TEST_F(UploadJob, A500OnTheSecondOfThreeStopsTheBatchAndFailsTheRest) {
    start({"--fault", "put_project_file=status:500,nth:2"});
    const FileList files = {passThrough("f1.txt", "one"), passThrough("f2.txt", "two"),
                            passThrough("f3.txt", "three")};
    manager.startUploadProcessForFiles(files, toFolder, false);
    ASSERT_TRUE(waitForAny());
    settle();

    EXPECT_EQ(log.count(kNotificationDidFailUploading), 1);
    EXPECT_EQ(log.count(kNotificationDidFinishUploading), 0);
    EXPECT_EQ(failureMessage(),
              "Cannot connect to the Orvale server. (Message: Expected status code in (200-299), "
              "got 500)");
    EXPECT_EQ(manager.uploadedFiles(), FileList{files[0]});
    EXPECT_EQ(manager.failedFiles(), (FileList{files[1], files[2]}));
    EXPECT_EQ(service->requestsTo("put_project_file").size(), 2);
    EXPECT_EQ(power.held, 0);
}

TEST_F(UploadJob, StoppingTheUploadsFailsTheBatchAndStoppingTheJobEndsItWithTheUnsentFailed) {
    start({"--fault", "put_project_file=delay:5000"});
    manager.startUploadProcessForFiles({passThrough("slow.txt", "slow")}, toFolder, false);
    manager.stopUploading();
    ASSERT_TRUE(waitForAny());
    EXPECT_EQ(failureMessage(), "Cannot connect to the Orvale server. (Message: cancelled)");
    EXPECT_EQ(log.count(kNotificationDidFailUploading), 1);

    log.received.clear();
    const FileList files = {passThrough("stop1.txt", "one"), passThrough("stop2.txt", "two")};
    manager.startUploadProcessForFiles(files, toFolder, false);
    manager.stopJob();
    ASSERT_TRUE(waitForAny());
    settle();  // the cancelled batch's late report changes nothing
    EXPECT_EQ(log.count(kNotificationDidFinishUploading), 1);
    EXPECT_EQ(log.count(kNotificationDidFailUploading), 0);
    EXPECT_EQ(manager.failedFiles(), files);
    EXPECT_EQ(power.held, 0);
}

// Signed in to no one.
TEST_F(UploadJob, ProgressTextsComeAtMostOncePer2500000BytesAndAtOnceInALaterJob) {
    manager.setByteLinesToStandardOutput(false);
    auto textsAfter = [&](int chunks) {
        for (int i = 0; i < chunks; ++i) {
            manager.didWriteBytes(1000000);
        }
        settle(200);
        return log.count(kNotificationDidChangeUploadedBytes);
    };

    EXPECT_EQ(textsAfter(2), 0);
    EXPECT_EQ(textsAfter(1), 1);
    EXPECT_EQ(log.received.last().object.toString(), "3 MB / 0 bytes");
    EXPECT_EQ(textsAfter(3), 2);

    // A later job starts its byte count below the last mark, so its first chunk shows at once.
    // With no one signed in, that job fails as a whole.
    manager.startUploadProcessForFiles({passThrough("alone.txt", "x")}, {}, false);
    EXPECT_EQ(textsAfter(1), 3);
    EXPECT_EQ(failureMessage(), ServerManagerHTTP::kNoSessionMessage);
}
