#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <csignal>

#include "support/CliRun.h"
#include "support/EventLoop.h"
#include "support/TestMedia.h"

namespace {

QString encodeFolderWith(const QTemporaryDir& dir, const QStringList& names) {
    const QString folder = dir.filePath("in");
    QDir().mkpath(folder);
    for (const QString& name : names) {
        const QString target = QDir(folder).filePath(name);
        QDir().mkpath(QFileInfo(target).absolutePath());
        QFile::copy(name.endsWith(".mov") ? TestMedia::video(320, 180, 1, true)
                                          : TestMedia::textFile("not-a-video", "not a video"),
                    target);
    }
    return folder;
}

}  // namespace

TEST(EncodeCommand, EncodesAFolderOnceAndRefusesWhatIsNotAVideo) {
    QTemporaryDir dir;
    const QString folder =
        encodeFolderWith(dir, {"a.mov", "sub/b.mov", ".hidden.mov", ".cache/d.mov", "notes.TXT",
                               "fake.mov.doc", "Kit.app/c.mov"});
    // A link back up would otherwise give every file again at each level.
    QFile::link(folder, folder + "/sub/loop");
    const QString out = dir.filePath("out");
    const CliRun result =
        CliRun::run({"encode", "--json", "--out", out, folder, folder + "/a.mov", "/no/such/path"});

    EXPECT_EQ(result.exitCode, 1) << result.err.toStdString();
    EXPECT_TRUE(result.err.contains("File(s) not supported: notes.txt, fake.mov.doc"))
        << result.err.toStdString();
    const QJsonObject summary = result.json().object();
    EXPECT_EQ(summary.value("completed").toInt(), 2);
    EXPECT_TRUE(summary.value("failed").toArray().isEmpty());
    EXPECT_EQ(summary.value("outputDirectory").toString(), out);
    EXPECT_EQ(summary.value("outputs").toArray(),
              (QJsonArray{QDir(out).filePath("a.mp4"), QDir(out).filePath("b.mp4")}));
    EXPECT_EQ(QDir(out).entryList(QDir::Files), (QStringList{"a.mp4", "b.mp4"}));
}

TEST(EncodeCommand, APresetNotOfferedOrAnOutputFolderThatCannotBeWrittenStopsTheJobAtOnce) {
    QTemporaryDir dir;
    const QString folder = encodeFolderWith(dir, {"small.mov"});
    const QString out = dir.filePath("out");
    const QString belowAFile = QDir(folder).filePath("small.mov/out");
    const QList<QPair<QStringList, QString>> cases = {
        {{"--preset", "1920x1080", "--out", out},
         "small.mov is not offered 1920x1080; it offers 320x180"},
        {{"--out", belowAFile},
         "orvale-cli encode: Cannot write to the output folder " + belowAFile +
             ": Not a directory"},
    };
    for (const auto& [options, error] : cases) {
        const CliRun result = CliRun::run(QStringList{"encode"} + options + QStringList{folder});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_TRUE(result.err.contains(error)) << result.err.toStdString();
        EXPECT_TRUE(result.out.isEmpty());
    }
    EXPECT_FALSE(QFileInfo::exists(out));
}

namespace {

// An encode of a 20-second clip, running until its encode shows in the work folder.
void startLongEncode(QProcess& cli, const CliDataHome& home, const QString& out) {
    const QString clip = TestMedia::copyNamed(TestMedia::video(640, 360, 20, true), "long run.mov");
    cli.setProcessEnvironment(home.environment());
    cli.start(QStringLiteral(ORVALE_CLI_PATH), {"encode", "--out", out, clip});
    ASSERT_TRUE(waitUntil([&] { return QFileInfo(home.encodes().value(0)).size() > 0; }, 60000));
}

// The process's child of that name, or 0.
pid_t childNamed(qint64 parent, const QString& name) {
    QProcess pgrep;
    pgrep.start("pgrep", {"-P", QString::number(parent), "-x", name});
    pgrep.waitForFinished();
    return pgrep.readAllStandardOutput().trimmed().toInt();
}

bool hasEnded(pid_t pid) {
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    return !stat.open(QIODevice::ReadOnly) || stat.readAll().contains(") Z ");
}

}  // namespace

TEST(EncodeCommand, AnInterruptStopsTheJobListsTheStoppedFileAndRemovesWhatWasUnfinished) {
    CliDataHome home;
    QProcess cli;
    startLongEncode(cli, home, home.dir.filePath("out"));
    ::kill(static_cast<pid_t>(cli.processId()), SIGINT);
    ASSERT_TRUE(cli.waitForFinished(30000));

    EXPECT_EQ(cli.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(cli.exitCode(), 130);
    // The job ended as the app's Stop ends it: the summary lists the stopped file as failed.
    EXPECT_TRUE(cli.readAllStandardOutput().contains("Completed: 0\nFailed: long run.mov\n"));
    EXPECT_TRUE(home.encodes().isEmpty());
    EXPECT_FALSE(QFileInfo::exists(home.dir.filePath("out/long run.mp4")));
}

TEST(EncodeCommand, AKilledRunTakesItsTranscoderAlongAndTheNextRunClearsItsEncode) {
    CliDataHome home;
    QProcess cli;
    startLongEncode(cli, home, home.dir.filePath("out"));
    const pid_t transcoder = childNamed(cli.processId(), "ffmpeg");
    ASSERT_NE(transcoder, 0);
    ::kill(static_cast<pid_t>(cli.processId()), SIGKILL);
    ASSERT_TRUE(cli.waitForFinished(30000));

    EXPECT_TRUE(waitUntil([&] { return hasEnded(transcoder); }));
    EXPECT_EQ(home.encodes().size(), 1);
    EXPECT_EQ(CliRun::run({"probe", "--json", "/nowhere.mov"}, home.environment()).exitCode, 0);
    EXPECT_TRUE(home.encodes().isEmpty());
}
