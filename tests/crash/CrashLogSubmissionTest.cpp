#include <gtest/gtest.h>

#include <QJsonArray>

#include "crash/CrashReportingFixture.h"
#include "crash/PellSystemInformation.h"
#include "support/NotificationLog.h"
#include "support/ServiceRecords.h"

namespace {

const QString kFinished = QVCrashReportSender::kFinishedNotification;
const QDateTime kFirstStart = QDateTime(QDate(2026, 3, 1), QTime(9, 0), Qt::UTC);

// A finder that searches the fixture's crash-log folder and posts to its orvale-service.
class CrashLogSubmission : public CrashReportingFixture {
protected:
    using CrashReportingFixture::CrashReportingFixture;

    PellCrashReporter& finder() {
        if (!m_finder) {
            m_finder = std::make_unique<PellCrashReporter>(m_settings, m_center, finderOptions());
        }
        return *m_finder;
    }

    NotificationLog m_log{m_center, {kFinished}};
    std::unique_ptr<PellCrashReporter> m_finder;
};

// A refused post still counts as finished and moves the date on; a post without answer is only
// logged, and the log is tried again at a later start.
class CrashLogSubmissionFault : public CrashLogSubmission,
                                public testing::WithParamInterface<const char*> {
protected:
    CrashLogSubmissionFault() : CrashLogSubmission({QStringLiteral("--fault"), GetParam()}) {}
};

}  // namespace

TEST_F(CrashLogSubmission, FirstStartOnlyStoresTheDate) {
    writeLog(QStringLiteral("Orvale_2026-02-01-101010_host.crash"),
             QDateTime::currentDateTimeUtc().addDays(-30));
    const QDateTime before = QDateTime::currentDateTimeUtc();

    EXPECT_FALSE(finder().checkForNewCrashes());

    ASSERT_TRUE(storedDate());
    EXPECT_GE(*storedDate(), before);
    EXPECT_LE(*storedDate(), QDateTime::currentDateTimeUtc());
    EXPECT_TRUE(m_service.requests().isEmpty());
}

// Names that merely start with the application's name count too; a log in a subfolder counts
// when its path within the crash-log folder does. The oldest new log goes first, so that moving
// the date on to it never skips another.
TEST_F(CrashLogSubmission, NewLogsWithTheApplicationsNameAreSentOldestFirstOnePerStart) {
    m_settings.setValue(CrashReportSettings::kLastCrashReportDateKey, kFirstStart);
    m_settings.setValue(CrashReportSettings::kSubmissionURLKey,
                        m_service.baseUrl() + QStringLiteral("/stored/crashlogs/submit"));
    const QList<QPair<const char*, int>> logs = {
        {"Orvale_one.crash", 120}, {"OrvaleHelper_two.crash", 60},  {"Orvale/three.crash", 180},
        {"Other_four.crash", 30},  {"older/Orvale_five.crash", 10}, {"Orvale_old.crash", -60}};
    for (const auto& [name, seconds] : logs) {
        writeLog(QLatin1String(name), kFirstStart.addSecs(seconds));
    }
    const PellCrashReporter::Options options{
        {m_dir.filePath(QStringLiteral("missing")), logFolder(), m_dir.path()},
        ApplicationInfo::current()};
    EXPECT_EQ(PellCrashReporter(m_settings, m_center, options).crashLogDirectories(),
              QStringList{logFolder()});

    QStringList sent;
    for (int start = 1; start <= 4; ++start) {
        PellCrashReporter finder(m_settings, m_center, options);
        if (!finder.checkForNewCrashes()) {
            break;
        }
        ASSERT_TRUE(waitUntil([&] { return m_log.count(kFinished) == start; }));
        sent << ServiceRecords::firstFile(m_service.uploads().last())["filename"].toString();
    }
    EXPECT_EQ(sent, (QStringList{"OrvaleHelper_two.crash", "Orvale_one.crash", "three.crash"}));
    // An address stored in the settings comes before the configured host.
    EXPECT_EQ(m_service.requestsTo("crash_log").value(0)["prefix"], "/stored");
}

class CrashLogFields : public CrashLogSubmission, public testing::WithParamInterface<bool> {};

TEST_P(CrashLogFields, NewerLogIsPostedWithTheReportsFieldsAndMovesTheDateOn) {
    const bool systemInformation = GetParam();
    m_settings.setValue(CrashReportSettings::kIncludeSystemInformationKey, systemInformation);
    m_settings.setValue(CrashReportSettings::kLastCrashReportDateKey, kFirstStart);
    const QDateTime modified = kFirstStart.addSecs(3600);
    const QByteArray text = "Process: Orvale [42]\nException Type: SIGSEGV\n";
    const QString path =
        writeLog(QStringLiteral("Orvale_2026-03-01-100000_host.crash"), modified, text);

    ASSERT_TRUE(finder().checkForNewCrashes());
    ASSERT_TRUE(waitUntil([this] { return m_log.count(kFinished) == 1; }))
        << m_service.diagnostics().toStdString();

    const QList<QJsonObject> requests = m_service.requestsTo("crash_log");
    ASSERT_EQ(requests.size(), 1);
    EXPECT_EQ(requests[0].value("status").toInt(), 200);
    EXPECT_EQ(requests[0].value("problems").toArray(), QJsonArray());
    EXPECT_EQ(requests[0].value("headers").toObject().value("User-Agent"), "PellCrashReporter");

    const QJsonObject upload = m_service.uploads().value(0);
    EXPECT_EQ(upload.value("boundary"), "81e29ba4f957efe5916039f587fe3ed7");
    const ApplicationInfo application = ApplicationInfo::current();
    QList<QPair<QString, QString>> expected = {
        {"systemInformationIncluded", systemInformation ? "1" : "0"},
        {"applicationName", application.name},
        {"applicationIdentifier", application.identifier},
        {"applicationVersion", application.version},
        {"applicationShortVersion", application.shortVersion}};
    if (systemInformation) {
        expected = PellSystemInformation().formFields() + expected;
    }
    QList<QPair<QString, QString>> sent;
    for (const QJsonValue& value : upload.value("fields").toArray()) {
        sent.append({value.toObject().value("name").toString(),
                     value.toObject().value("value").toString()});
    }
    ASSERT_EQ(sent.size(), expected.size() + 1);
    EXPECT_EQ(sent.takeLast().first, "date");
    EXPECT_EQ(sent, expected);

    const QJsonObject file = ServiceRecords::firstFile(upload);
    EXPECT_EQ(file.value("field"), "crashLog");
    EXPECT_EQ(file.value("filename"), "Orvale_2026-03-01-100000_host.crash");
    EXPECT_EQ(ServiceRecords::storedContent(file), text);

    EXPECT_EQ(storedDate(), QFileInfo(path).lastModified());
    // The same log is not sent again at the next start.
    PellCrashReporter nextStart(m_settings, m_center, finderOptions());
    EXPECT_FALSE(nextStart.checkForNewCrashes());
}

INSTANTIATE_TEST_SUITE_P(SystemInformation, CrashLogFields, testing::Bool(),
                         [](const testing::TestParamInfo<bool>& info) {
                             return info.param ? "On" : "Off";
                         });

TEST_P(CrashLogSubmissionFault, OnlyAnAnswerMovesTheDateOn) {
    const bool answered = QByteArray(GetParam()).contains("status:500");
    m_settings.setValue(CrashReportSettings::kLastCrashReportDateKey, kFirstStart);
    const QString path = writeLog(QStringLiteral("Orvale_a.crash"), kFirstStart.addSecs(60));

    ASSERT_TRUE(finder().checkForNewCrashes());
    // Until the post has been answered or has failed.
    ASSERT_TRUE(waitUntil([this] { return finder().sender() && !finder().sender()->isSending(); }));
    waitUntil([this] { return m_log.count(kFinished) > 0; }, answered ? 10000 : 0);
    EXPECT_EQ(m_service.requestsTo("crash_log").size(), 1);
    EXPECT_EQ(m_log.count(kFinished), answered ? 1 : 0);
    EXPECT_EQ(storedDate(), answered ? QFileInfo(path).lastModified() : kFirstStart);
}

INSTANTIATE_TEST_SUITE_P(Answers, CrashLogSubmissionFault,
                         testing::Values("crash_log=status:500", "crash_log=drop:0"));
