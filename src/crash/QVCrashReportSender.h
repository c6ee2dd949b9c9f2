#pragma once

#include <QDateTime>
#include <QLocale>
#include <QObject>
#include <QUrl>
#include <functional>

#include "crash/GenerateFormData.h"
#include "platform/ApplicationInfo.h"
#include "platform/NotificationCenter.h"
#include "service/HttpTransport.h"

// Posts one crash log, with facts about the application and, when the user allowed it, about
// the machine, to the crash-log submission address. An answer of any status counts as finished
// and is announced as "QVCrashReportSenderFinished"; a post that gets no answer is only logged.
class QVCrashReportSender : public QObject {
public:
    static inline const QString kFinishedNotification =
        QStringLiteral("QVCrashReportSenderFinished");
    static inline const QByteArray kBoundary = "81e29ba4f957efe5916039f587fe3ed7";
    static inline const QByteArray kUserAgent = "PellCrashReporter";

    struct Facts {
        ApplicationInfo application;
        bool includeSystemInformation = false;
        QLocale reportingLocale;
    };

    QVCrashReportSender(NotificationCenter& center, Facts facts, QObject* parent = nullptr);

    // Runs once the answer is in, before the announcement, so listeners see its effects.
    void setFinishedHandler(std::function<void()> handler) {
        m_finishedHandler = std::move(handler);
    }

    void sendReportForCrashLogPath(const QString& path, const QUrl& submissionURL);

    bool isSending() const { return m_connection != 0 && m_transport.isRunning(m_connection); }
    const QByteArray& responseData() const { return m_responseData; }

    // The report's fields: the machine facts given, "systemInformationIncluded", the log
    // itself, the application values that are set, and the date.
    static CrashFormFields formFields(const QString& crashLogPath, const Facts& facts,
                                      const QList<QPair<QString, QString>>& systemFacts,
                                      const QDateTime& now);
    // Date and time each in the locale's medium style, as in "Nov 23, 2026 4:05:09 PM".
    static QString mediumDateTimeText(const QDateTime& dateTime, const QLocale& locale);

private:
    void didReceiveResponse(const HttpResponse& response);
    void didReceiveData(const QByteArray& data);
    void didFinishLoading();
    void didFailWithError(const QString& description);

    NotificationCenter& m_center;
    Facts m_facts;
    std::function<void()> m_finishedHandler;
    QByteArray m_responseData;
    HttpRequestId m_connection = 0;
    // Last, so that it goes first: no answer is handled by a sender being torn down.
    HttpTransport m_transport;
};
