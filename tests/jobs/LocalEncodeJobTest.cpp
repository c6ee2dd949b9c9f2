#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include "platform/WorkFolder.h"
#include "support/JobFiles.h"
#include "support/JobHarness.h"
#include "support/ServiceRecords.h"
#include "support/TestMedia.h"

using namespace NotificationNames;

namespace {

const QStringList jobNotifications = {
    kNotificationIsLocalEncode, kNotificationDidChangeEncodedPercent,
    kNotificationDidOccureProblemWhileEncoding, kNotificationDidRanOutOfSpaceOnDisk,
    kNotificationDidFinishUploading};

class LocalEncodeJob : public testing::Test, protected JobHarness {
protected:
    LocalEncodeJob() : JobHarness(jobNotifications) {}

    bool runUntilDone() { return waitForAny({kNotificationDidFinishUploading}); }
    QStringList outputNames() const {
        return QDir(output.path()).entryList(QDir::Files, QDir::Name);
    }
};

// A clip with its own name, so encodes of different tests never share an output name.
QString clipNamed(const QString& name, int width = 320, int height = 180, double seconds = 1.0) {
    return TestMedia::copyNamed(TestMedia::video(width, height, seconds, true), name);
}

// "codec,width,pixel format" per stream of an encode, as ffprobe reads it ("aac" for audio).
QStringList streamsOf(const QString& path) {
    QProcess ffprobe;
    ffprobe.start("ffprobe", {"-v", "quiet", "-show_entries", "stream=codec_name,width,pix_fmt",
                              "-of", "csv=p=0", path});
    ffprobe.waitForFinished(30000);
    return QString::fromUtf8(ffprobe.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
}

}  // namespace

// A corrupt video in the middle is reported and the others still arrive; a name already taken
// in the output folder gets a time-stamped alternative beside the user's own file.
TEST_F(LocalEncodeJob, ThreeVideosAreEncodedAtTheChosenSizeMovedAndTheJobCompletesOnce) {
    const QString usersOwn = output.filePath("three-c.mp4");
    ASSERT_TRUE(QFile::copy(TestMedia::textFile("users-own.mp4", "the user's own"), usersOwn));
    const FilePtr corrupt = damagedClip("three-b.mov");
    // 480x200 is offered 480x200, 360x150 and 240x100; take the second.
    const FileList files = {probedFile(clipNamed("three-a.mov", 480, 200), 1), corrupt,
                            probedFile(clipNamed("three-c.mov"))};
    ASSERT_EQ(files[0]->videoDetail->widthToEncode, 360);
    manager.startLocalEncodeForFiles(files, outputUrl());
    ASSERT_TRUE(runUntilDone());
    settle(200);  // anything posted late would show up now

    EXPECT_EQ(log.names().first(), kNotificationIsLocalEncode);
    EXPECT_EQ(log.count(kNotificationDidFinishUploading), 1);
    EXPECT_EQ(log.count(kNotificationDidOccureProblemWhileEncoding), 1);
    EXPECT_EQ(waitFor(kNotificationDidOccureProblemWhileEncoding).object.value<FilePtr>(), corrupt);
    const QList<float> percents = log.percents();
    ASSERT_FALSE(percents.isEmpty());
    EXPECT_TRUE(std::is_sorted(percents.begin(), percents.end()));
    EXPECT_FLOAT_EQ(percents.last(), 100.0f);
    EXPECT_EQ(manager.uploadedFilesCount(), 2);
    EXPECT_EQ(manager.failedFiles(), FileList{corrupt});
    const QStringList names = outputNames();
    ASSERT_EQ(names.size(), 3);
    EXPECT_EQ(names[0], "three-a.mp4");
    EXPECT_TRUE(names[1].startsWith("three-c ")) << names[1];  // time-stamped
    EXPECT_EQ(ServiceRecords::contentsOf(usersOwn), "the user's own");
    EXPECT_TRUE(QDir(WorkFolder::current().processFolder()).isEmpty());  // nothing left behind

    // H.264 and AAC at the chosen width, with the index before the media data.
    const QString encoded = output.filePath("three-a.mp4");
    EXPECT_EQ(streamsOf(encoded), (QStringList{"h264,360,yuv420p", "aac"}));
    const QByteArray bytes = ServiceRecords::contentsOf(encoded);
    const qsizetype index = bytes.indexOf("moov");
    EXPECT_TRUE(index > 0 && index < bytes.indexOf("mdat"));
    EXPECT_EQ(power.lastName, QStringLiteral("Upload"));
}

TEST_F(LocalEncodeJob, FilesThatNeedNoEncodingCompleteTheJobAtOnce) {
    const FilePtr text = probedFile(TestMedia::textFile("pass-through.txt", "hello"));
    const FilePtr doNotEncode = probedFile(clipNamed("do-not-encode.mov"));
    doNotEncode->videoDetail->doNotEncode = true;
    const FilePtr alreadyEncoded = probedFile(clipNamed("already.mov"));
    alreadyEncoded->videoDetail->encodeSuccess = true;

    manager.startLocalEncodeForFiles({text, doNotEncode, alreadyEncoded}, outputUrl());

    EXPECT_EQ(log.names(),
              (QStringList{kNotificationIsLocalEncode, kNotificationDidFinishUploading}));
    EXPECT_FALSE(manager.isEncoding());
    EXPECT_TRUE(outputNames().isEmpty());
    EXPECT_TRUE(manager.failedFiles().isEmpty());
    EXPECT_EQ(power.held, 0);
}

TEST_F(LocalEncodeJob, StoppingInTheSecondOfThreeFilesEndsOnceAndRemovesTheUnfinishedEncode) {
    NotificationLog starts{center, {kNotificationDidStartEncodingFile}};
    const FileList files = {
        probedFile(clipNamed("stop-a.mov")),
        probedFile(TestMedia::copyNamed(TestMedia::video(640, 360, 20, true), "stop-b.mov")),
        probedFile(clipNamed("stop-c.mov"))};
    manager.startLocalEncodeForFiles(files, outputUrl());
    ASSERT_TRUE(
        waitUntil([&] { return starts.count(kNotificationDidStartEncodingFile) == 2; }, 30000));
    const QString partial = files[1]->videoDetail->encodedVideoUrl.toLocalFile();
    ASSERT_TRUE(waitUntil([&] { return QFileInfo(partial).size() > 0; }, 30000));
    int stopped = 0;
    manager.stopJob([&] { ++stopped; });
    EXPECT_EQ(power.held, 0);
    ASSERT_TRUE(waitUntil([&] { return stopped > 0; }));
    settle();

    EXPECT_EQ(stopped, 1);
    EXPECT_EQ(log.count(kNotificationDidFinishUploading), 1);
    EXPECT_EQ(manager.uploadedFilesCount(), 1);
    EXPECT_EQ(manager.failedFiles(), (FileList{files[1], files[2]}));
    EXPECT_FALSE(QFileInfo::exists(partial));
    EXPECT_FALSE(QFileInfo::exists(QFileInfo(partial).path()));
    EXPECT_EQ(outputNames(), QStringList{"stop-a.mp4"});
}

TEST_F(LocalEncodeJob, AMoveThatFailsMakesAFailedFileWithItsReasonAndLeavesNoEncode) {
    const FilePtr file = probedFile(clipNamed("moved-nowhere.mov"));
    manager.startLocalEncodeForFiles({file}, outputUrl());
    ASSERT_TRUE(output.remove());  // the folder goes while the file encodes
    ASSERT_TRUE(runUntilDone());

    EXPECT_EQ(manager.failedFiles(), FileList{file});
    EXPECT_EQ(manager.uploadedFilesCount(), 0);
    EXPECT_TRUE(file->failureReason.startsWith("Cannot move the encode to " + output.path()))
        << file->failureReason.toStdString();
    EXPECT_FALSE(QFileInfo::exists(file->videoDetail->encodedVideoUrl.toLocalFile()));
    EXPECT_EQ(power.held, 0);
}
