#include <gtest/gtest.h>

#include <QPointF>
#include <QUrl>

#include "crash/GenerateFormData.h"
#include "crash/QVCrashReportSender.h"
#include "support/TestMedia.h"

namespace {

const QByteArray kBoundary = QVCrashReportSender::kBoundary;

QByteArray textPart(const QByteArray& name, const QByteArray& value) {
    return "--" + kBoundary + "\r\nContent-Disposition: form-data; name=\"" + name +
           "\"\r\nContent-Type: text/plain; charset=utf-8\r\n\r\n" + value + "\r\n";
}

}  // namespace

TEST(GenerateFormData, TextNumberBoolAndFilePartsAreFramedAndLabelled) {
    const QByteArray content("line one\r\n--not a boundary\n\xff\x00end", 35);
    const QString path = TestMedia::textFile(QStringLiteral("Orvale_2026.crash"), content);

    const CrashFormFields fields{
        {QStringLiteral("physicalMemory"), QVariant::fromValue<quint64>(17179869184ULL)},
        {QStringLiteral("systemInformationIncluded"), false},
        // A value of no known kind must not leave a headerless part behind.
        {QStringLiteral("odd"), QPointF(1, 2)},
        {QStringLiteral("crashLog"), QUrl::fromLocalFile(path)},
        {QStringLiteral("date"), QStringLiteral("23. Nov. 2026 — 16:05")},
    };
    const QByteArray expected =
        textPart("physicalMemory", "17179869184") + textPart("systemInformationIncluded", "0") +
        "--" + kBoundary +
        "\r\nContent-Disposition: form-data; name=\"crashLog\"; filename=\"Orvale_2026.crash\"\r\n"
        "Content-Type: application/octet-stream\r\n\r\n" +
        content + "\r\n" + textPart("date", QStringLiteral("23. Nov. 2026 — 16:05").toUtf8()) +
        "--" + kBoundary + "--\r\n";
    EXPECT_EQ(GenerateFormData(fields, kBoundary), expected);
}

TEST(CrashReportDate, MediumStyleOfTheReportingLocale) {
    const QDateTime time(QDate(2026, 11, 23), QTime(16, 5, 9));
    EXPECT_EQ(QVCrashReportSender::mediumDateTimeText(time, QLocale(QStringLiteral("en_US"))),
              QStringLiteral("Nov 23, 2026 4:05:09 PM"));
    // Whatever the locale: no weekday, no time zone, the seconds kept.
    for (const char* name : {"de_DE", "fr_FR", "ja_JP", "en_GB"}) {
        const QLocale locale{QLatin1String(name)};
        const QString text = QVCrashReportSender::mediumDateTimeText(time, locale);
        SCOPED_TRACE(text.toStdString());
        EXPECT_FALSE(text.contains(locale.dayName(1, QLocale::LongFormat)));
        EXPECT_TRUE(text.contains(QStringLiteral("09")) && text.contains(QStringLiteral("2026")));
        EXPECT_FALSE(text.contains(QStringLiteral("UTC")) || text.contains(QStringLiteral("GMT")));
    }
}
