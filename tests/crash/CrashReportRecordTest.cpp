#include <gtest/gtest.h>

#include "crash/CrashReportRecord.h"

namespace {

CrashReportRecord segfault() {
    CrashReportRecord record;
    record.systemInfo.timestamp = QDateTime::fromSecsSinceEpoch(1712318096, Qt::UTC);
    record.signalInfo = {QStringLiteral("SIGSEGV"), QStringLiteral("SEGV_MAPERR"), 0x7ffe11a18d20};
    return record;
}

CrashReportRecord uncaughtException() {
    CrashReportRecord record = segfault();
    record.exceptionInfo = CrashReportRecord::ExceptionInfo{
        QStringLiteral("std::runtime_error"), QStringLiteral("line one\nC:\\path, fünf\r")};
    record.signalInfo = {QStringLiteral("SIGABRT"), QStringLiteral("SI_TKILL"), 0};
    return record;
}

}  // namespace

// The layout is what an earlier build's crash handler left on disk; it must keep reading.
TEST(CrashReportRecord, WritesTheLayoutTheHandlerWritesAndReadsItBack) {
    EXPECT_EQ(uncaughtException().toData(),
              QByteArray("OrvaleCrashRecord 1\n"
                         "timestamp: 1712318096\n"
                         "exceptionName: std::runtime_error\n"
                         "exceptionReason: line one\\nC:\\\\path, f\xc3\xbc"
                         "nf\\r\n"
                         "signalName: SIGABRT\n"
                         "signalCode: SI_TKILL\n"
                         "signalAddress: 0x0\n"));
    for (const CrashReportRecord& record : {segfault(), uncaughtException()}) {
        EXPECT_EQ(CrashReportRecord::fromData(record.toData()), record);
    }
}

TEST(CrashReportRecord, ToleratesUnknownKeysAndAnExceptionWithoutReason) {
    const auto read = CrashReportRecord::fromData(
        "OrvaleCrashRecord 1\n"
        "threadName: main\n"
        "timestamp: 5\n"
        "exceptionName: Oddity\n"
        "signalName: SIGABRT\n"
        "signalCode: #-6\n"
        "signalAddress: 0x0\n");
    ASSERT_TRUE(read);
    ASSERT_TRUE(read->exceptionInfo);
    EXPECT_EQ(read->exceptionInfo->exceptionName, QStringLiteral("Oddity"));
    EXPECT_EQ(read->exceptionInfo->exceptionReason, QString());
    EXPECT_EQ(read->signalInfo.code, QStringLiteral("#-6"));
}

TEST(CrashReportRecord, RejectsWhatIsNoRecordOrLacksAValue) {
    const QByteArray complete = segfault().toData();
    QByteArray withoutAddress = complete;
    withoutAddress.truncate(withoutAddress.indexOf("signalAddress"));

    const QList<QByteArray> broken = {
        QByteArray(),
        QByteArray("OrvaleCrashRecord 2\n") + complete.mid(complete.indexOf('\n') + 1),
        QByteArray("\x89PNG\r\n"),
        withoutAddress,
        QByteArray(complete).replace("timestamp: 1712318096", "timestamp: soon"),
        QByteArray(complete).replace("signalAddress: 0x", "signalAddress: "),
    };
    for (const QByteArray& data : broken) {
        QString error;
        EXPECT_FALSE(CrashReportRecord::fromData(data, &error)) << data.toStdString();
        EXPECT_FALSE(error.isEmpty()) << data.toStdString();
    }
}
