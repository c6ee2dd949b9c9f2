#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include "platform/SingleInstance.h"
#include "support/EventLoop.h"

namespace {

// Another start of Orvale, in a process of its own, from `workingFolder`.
class OtherStart {
public:
    OtherStart(const QString& runtimeFolder, const QStringList& files,
               const QString& workingFolder = QDir::currentPath()) {
        process.setWorkingDirectory(workingFolder);
        process.start(QStringLiteral(ORVALE_INSTANCE_CHILD_PATH),
                      QStringList{runtimeFolder} + files);
    }
    ~OtherStart() {
        if (process.state() != QProcess::NotRunning) {
            process.kill();
            process.waitForFinished();
        }
    }

    bool said(const QByteArray& line) {
        return waitUntil([&] {
            output += process.readAllStandardOutput();
            return output.contains(line + '\n');
        });
    }

    // waitForFinished() is false for a process whose end the event loop has already seen.
    bool ended() {
        return process.state() == QProcess::NotRunning || process.waitForFinished(10000);
    }

    QProcess process;
    QByteArray output;
};

using Activations = QList<QStringList>;

}  // namespace

TEST(SingleInstance, AfterOneKilledOnTheSpotLaterStartsHandTheirFilesAsAbsolutePathsAndEnd) {
    QTemporaryDir runtime;
    QTemporaryDir work;
    {
        OtherStart crashed(runtime.path(), {});
        ASSERT_TRUE(crashed.said("running"));
        crashed.process.kill();  // SIGKILL: the lock and the socket stay behind
        ASSERT_TRUE(crashed.ended());
    }
    ASSERT_TRUE(QFileInfo::exists(QDir(runtime.path()).filePath("orvale.lock")));

    SingleInstance running(runtime.path());
    Activations activations;
    QObject::connect(&running, &SingleInstance::activationRequested,
                     [&](const QStringList& files) { activations << files; });
    ASSERT_TRUE(running.start({}));

    OtherStart withFiles(runtime.path(),
                         {QStringLiteral("clip one.mov"), QStringLiteral("/abs/b.mp4")},
                         work.path());
    ASSERT_TRUE(withFiles.said("handed over"));
    ASSERT_TRUE(waitUntil([&] { return activations.size() == 1; }));
    EXPECT_EQ(activations[0], (QStringList{work.filePath("clip one.mov"), "/abs/b.mp4"}));
    EXPECT_TRUE(withFiles.ended());
    EXPECT_EQ(withFiles.process.exitCode(), 0);

    // A plain start only asks for the window.
    OtherStart plain(runtime.path(), {});
    ASSERT_TRUE(plain.said("handed over"));
    ASSERT_TRUE(waitUntil([&] { return activations.size() == 2; }));
    EXPECT_EQ(activations[1], QStringList());
}
