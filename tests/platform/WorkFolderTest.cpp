#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "platform/WorkFolder.h"

namespace {

void writeFile(const QString& path) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write("encode");
}

}  // namespace

TEST(WorkFolder, EncodesOfOneNameNeverMeetAndKeepTheirName) {
    QTemporaryDir root;
    WorkFolder first(root.path());
    WorkFolder second(root.path());  // as another process would have
    const QStringList paths = {first.newEncodePath("clip.mp4"), first.newEncodePath("clip.mp4"),
                               second.newEncodePath("clip.mp4")};
    for (const QString& path : paths) {
        EXPECT_EQ(QFileInfo(path).fileName(), "clip.mp4");
        EXPECT_TRUE(QFileInfo(path).dir().exists());
        writeFile(path);
    }
    EXPECT_EQ(QSet<QString>(paths.begin(), paths.end()).size(), 3);
    EXPECT_NE(first.processFolder(), second.processFolder());

    WorkFolder::removeEncode(paths[0]);
    EXPECT_FALSE(QFileInfo::exists(QFileInfo(paths[0]).path()));
    EXPECT_TRUE(QFileInfo::exists(paths[1]));
}

TEST(WorkFolder, LeftoversGoWhileTheEncodesOfARunningProcessStay) {
    QTemporaryDir root;
    WorkFolder running(root.path());
    const QString live = running.newEncodePath("live.mp4");
    writeFile(live);
    // A process that was killed: its folder's lock file is there, and nobody holds it.
    writeFile(root.filePath("4242-0badf00d/.lock"));
    writeFile(root.filePath("4242-0badf00d/1/killed.mp4"));
    writeFile(root.filePath("stray.mp4"));
    {
        WorkFolder ended(root.path());
        writeFile(ended.newEncodePath("ended.mp4"));
    }

    WorkFolder::removeLeftovers(root.path());

    EXPECT_TRUE(QFileInfo::exists(live));
    QStringList left =
        QDir(root.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    left.removeAll(".lock");
    EXPECT_EQ(left, QStringList{QFileInfo(running.processFolder()).fileName()});
}
