#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <csignal>

#include "crash/CrashPaths.h"
#include "crash/CrashReportRecord.h"
#include "crash/CrashReporter.h"
#include "support/ServiceRecords.h"

using ServiceRecords::contentsOf;

namespace {

// Runs the crashing child in its own folders and keeps what it left behind.
class CrashingChild {
public:
    explicit CrashingChild(const char* mode) {
        QProcess child;
        child.setProcessChannelMode(QProcess::MergedChannels);
        m_before = QDateTime::currentSecsSinceEpoch();
        child.start(QStringLiteral(ORVALE_CRASH_CHILD_PATH),
                    {QLatin1String(mode), pendingFolder(), logFolder()});
        child.waitForFinished(30000);
        m_after = QDateTime::currentSecsSinceEpoch();
        // Of a crashed process, Qt keeps the signal it died of as its exit code.
        m_signal = child.exitStatus() == QProcess::CrashExit ? child.exitCode() : 0;
        m_output = QString::fromUtf8(child.readAll());
    }

    QString pendingFolder() const { return m_dir.filePath(QStringLiteral("pending")); }
    QString logFolder() const { return m_dir.filePath(QStringLiteral("logs")); }

    int signalOfDeath() const { return m_signal; }
    QString output() const { return m_output; }

    std::optional<CrashReportRecord> record() const {
        CrashReporter::Options options = CrashReporter::Options::defaults();
        options.pendingRecordFolder = pendingFolder();
        const auto data = CrashReporter(options).loadPendingCrashReportData();
        return data ? CrashReportRecord::fromData(*data) : std::nullopt;
    }

    QStringList crashLogs() const { return QDir(logFolder()).entryList(QDir::Files); }
    QString crashLog() const {
        return QString::fromUtf8(contentsOf(QDir(logFolder()).filePath(crashLogs().value(0))));
    }

    bool happenedWhileRunning(const QDateTime& time) const {
        return time.toSecsSinceEpoch() >= m_before && time.toSecsSinceEpoch() <= m_after;
    }

private:
    QTemporaryDir m_dir;
    int m_signal = 0;
    QString m_output;
    qint64 m_before = 0;
    qint64 m_after = 0;
};

// The log's name, its fixed lines, and a backtrace of at least a few frames.
void expectCrashLog(const CrashingChild& child, const QString& exceptionType,
                    const QString& faultAddress) {
    ASSERT_EQ(child.crashLogs().size(), 1) << child.crashLogs().join(' ').toStdString();
    EXPECT_TRUE(QRegularExpression(QStringLiteral(R"(^Orvale_\d{4}-\d\d-\d\d-\d{6}\.crash$)"))
                    .match(child.crashLogs()[0])
                    .hasMatch())
        << child.crashLogs()[0].toStdString();

    const QString log = child.crashLog();
    EXPECT_TRUE(log.startsWith(QStringLiteral("Process:         Orvale ["))) << log.toStdString();
    EXPECT_TRUE(
        log.contains(QStringLiteral("\nPath:            ") + ORVALE_CRASH_CHILD_PATH + '\n'));
    EXPECT_TRUE(log.contains(QStringLiteral("\nException Type:  ") + exceptionType + '\n'));
    EXPECT_TRUE(log.contains(QStringLiteral("\nFault Address:   ") + faultAddress + '\n'));
    // No one agreed to send machine facts, so the machine's name stays out.
    EXPECT_FALSE(log.contains(QStringLiteral("\nHost:"))) << log.toStdString();
    const QString backtrace = log.section(QStringLiteral("\nBacktrace:\n"), 1);
    EXPECT_GE(backtrace.count(QStringLiteral("[0x")), 3) << log.toStdString();
}

}  // namespace

struct CrashCase {
    const char* mode;
    int signal;
    const char* code;  // as named in the record; the log adds it to the signal's name
    bool zeroAddress;
};

// A stack overflow is reported from the alternate stack; a signal sent by kill is taken for what
// it is (its address is not the sender's pid and uid read as one).
TEST(CrashCapture, EachWayOfDyingLeavesARecordAndALog) {
    for (const CrashCase& c : {CrashCase{"null-write", SIGSEGV, "SEGV_MAPERR", true},
                               CrashCase{"uncaught-exception", SIGABRT, "SI_TKILL", true},
                               CrashCase{"kill-segv", SIGSEGV, "SI_USER", true},
                               CrashCase{"stack-overflow", SIGSEGV, nullptr, false}}) {
        SCOPED_TRACE(c.mode);
        const CrashingChild child(c.mode);
        EXPECT_EQ(child.signalOfDeath(), c.signal) << child.output().toStdString();
        const auto record = child.record();
        ASSERT_TRUE(record);
        EXPECT_TRUE(child.happenedWhileRunning(record->systemInfo.timestamp));
        const QString name = QString::fromLatin1(sigabbrev_np(c.signal)).prepend("SIG");
        EXPECT_EQ(record->signalInfo.name, name);
        EXPECT_EQ(record->signalInfo.address == 0, c.zeroAddress);
        EXPECT_EQ(child.crashLogs().size(), 1);
        if (c.code) {
            EXPECT_EQ(record->signalInfo.code, QLatin1String(c.code));
            expectCrashLog(child, name + " (" + c.code + ')', "0x0000000000000000");
        }
        // Only the exception's run records one, beside the library's own message.
        ASSERT_EQ(bool(record->exceptionInfo), c.signal == SIGABRT);
        if (record->exceptionInfo) {
            EXPECT_TRUE(child.output().contains(QStringLiteral("the disk is on fire")));
            EXPECT_EQ(record->exceptionInfo->exceptionName, QStringLiteral("std::runtime_error"));
            EXPECT_EQ(record->exceptionInfo->exceptionReason,
                      QStringLiteral("the disk is on fire\nand so is the fan"));
            EXPECT_TRUE(child.crashLog().contains(
                QStringLiteral("\nException Name:  std::runtime_error\n"
                               "Exception Reason: the disk is on fire\\nand so is the fan\n")));
        }
    }
}

TEST(CrashCapture, CrashLogsGoWhereTheCrashLogFinderLooksFirst) {
    EXPECT_EQ(CrashPaths::crashLogDirectoryCandidates().value(0),
              CrashReporter::Options::defaults().crashLogDirectory);
}
