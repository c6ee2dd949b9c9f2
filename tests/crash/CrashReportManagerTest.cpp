#include <gtest/gtest.h>

#include "crash/CrashReportManager.h"

TEST(CrashReportManager, SummaryNamesTimeExceptionAndSignal) {
    CrashReportRecord record;
    record.systemInfo.timestamp = QDateTime(QDate(2026, 4, 5), QTime(11, 54, 56), Qt::UTC);
    record.signalInfo = {QStringLiteral("SIGBUS"), QStringLiteral("BUS_ADRERR"), 0x7FFDEAD0};
    EXPECT_EQ(CrashReportManager::descriptionOf(record),
              QStringLiteral("Crashed on 2026-04-05 11:54:56 +0000\n"
                             "Crashed with exception: (name:(null), reason:(null))\n"
                             "Crashed with signal SIGBUS (code BUS_ADRERR, address=0x7ffdead0)"));

    // Texts that look like placeholders are sent as they are.
    record.exceptionInfo = {QStringLiteral("std::logic_error"), QStringLiteral("50% of %1")};
    EXPECT_TRUE(CrashReportManager::descriptionOf(record).contains(
        QStringLiteral("(name:std::logic_error, reason:50% of %1)")));
}
