#include <gtest/gtest.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "crash/CrashReportRecord.h"
#include "crash/CrashReporter.h"

namespace {

class CrashReporterTest : public testing::Test {
protected:
    CrashReporter reporter() const {
        CrashReporter::Options options = CrashReporter::Options::defaults();
        options.pendingRecordFolder = m_dir.filePath(QStringLiteral("pending"));
        options.crashLogDirectory = m_dir.filePath(QStringLiteral("logs"));
        return CrashReporter(options);
    }

    void leaveRecord(const QByteArray& data) const {
        QDir().mkpath(reporter().options().pendingRecordFolder);
        QFile file(reporter().pendingRecordPath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(data);
    }

    QTemporaryDir m_dir;
};

}  // namespace

// A record that cannot be parsed is still pending, so that it can be reported and purged.
TEST_F(CrashReporterTest, PendingRecordIsLoadedAsItWasLeftUntilPurged) {
    leaveRecord("half a rec");
    CrashReporter crashReporter = reporter();
    ASSERT_TRUE(crashReporter.hasPendingCrashReport());
    EXPECT_EQ(crashReporter.loadPendingCrashReportData(), "half a rec");
    EXPECT_TRUE(crashReporter.purgePendingCrashReport());
    EXPECT_FALSE(crashReporter.hasPendingCrashReport());
    // With nothing pending, loading says why and purging has nothing to do.
    QString error;
    EXPECT_FALSE(reporter().loadPendingCrashReportData(&error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_TRUE(reporter().purgePendingCrashReport());
}

TEST_F(CrashReporterTest, UnreadableRecordFailsToLoadWithAReason) {
    if (geteuid() == 0) {
        GTEST_SKIP() << "root reads any file";
    }
    leaveRecord(CrashReportRecord().toData());
    QFile::setPermissions(reporter().pendingRecordPath(), QFileDevice::Permissions());
    QString error;
    EXPECT_FALSE(reporter().loadPendingCrashReportData(&error));
    EXPECT_TRUE(error.contains(reporter().pendingRecordPath())) << error.toStdString();
    EXPECT_TRUE(reporter().purgePendingCrashReport());
}

TEST_F(CrashReporterTest, EnablingFailsWhenAFolderCannotBeMade) {
    QFile blocker(m_dir.filePath(QStringLiteral("pending")));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    QString error;
    EXPECT_FALSE(reporter().enableCrashReporter(&error));
    EXPECT_TRUE(error.contains(reporter().options().pendingRecordFolder)) << error.toStdString();
}
