#include "crash/QVCrashReportSender.h"

#include <QRegularExpression>

#include "crash/PellSystemInformation.h"
#include "platform/Log.h"

namespace {

// Qt has no medium style; the long one without the weekday and with short month names is it.
QString mediumDateFormat(const QLocale& locale) {
    QString format = locale.dateFormat(QLocale::LongFormat);
    static const QRegularExpression weekday(QStringLiteral("dddd[\\s,.]*"));
    static const QRegularExpression trailing(QStringLiteral("[\\s,]+$"));
    format.remove(weekday).remove(trailing);
    return format.replace(QLatin1String("MMMM"), QLatin1String("MMM"));
}

// ... and the long time without the time zone.
QString mediumTimeFormat(const QLocale& locale) {
    QString format = locale.timeFormat(QLocale::LongFormat);
    static const QRegularExpression zone(QStringLiteral("\\s*\\bt+\\b"));
    return format.remove(zone).trimmed();
}

void appendIfSet(CrashFormFields& fields, const QString& name, const QString& value) {
    if (!value.isEmpty()) {
        fields.append({name, value});
    }
}

}  // namespace

QVCrashReportSender::QVCrashReportSender(NotificationCenter& center, Facts facts, QObject* parent)
    : QObject(parent), m_center(center), m_facts(std::move(facts)) {}

QString QVCrashReportSender::mediumDateTimeText(const QDateTime& dateTime, const QLocale& locale) {
    return locale.toString(dateTime.date(), mediumDateFormat(locale)) + QLatin1Char(' ') +
           locale.toString(dateTime.time(), mediumTimeFormat(locale));
}

CrashFormFields QVCrashReportSender::formFields(const QString& crashLogPath, const Facts& facts,
                                                const QList<QPair<QString, QString>>& systemFacts,
                                                const QDateTime& now) {
    CrashFormFields fields;
    if (facts.includeSystemInformation) {
        for (const auto& [name, value] : systemFacts) {
            fields.append({name, value});
        }
    }
    fields.append({QStringLiteral("systemInformationIncluded"), facts.includeSystemInformation});
    fields.append({QStringLiteral("crashLog"), QUrl::fromLocalFile(crashLogPath)});
    appendIfSet(fields, QStringLiteral("applicationName"), facts.application.name);
    appendIfSet(fields, QStringLiteral("applicationIdentifier"), facts.application.identifier);
    appendIfSet(fields, QStringLiteral("applicationVersion"), facts.application.version);
    appendIfSet(fields, QStringLiteral("applicationShortVersion"), facts.application.shortVersion);
    fields.append({QStringLiteral("date"), mediumDateTimeText(now, facts.reportingLocale)});
    return fields;
}

void QVCrashReportSender::sendReportForCrashLogPath(const QString& path,
                                                    const QUrl& submissionURL) {
    // Read afresh: the machine may have changed since the process started.
    const QList<QPair<QString, QString>> systemFacts = m_facts.includeSystemInformation
                                                           ? PellSystemInformation().formFields()
                                                           : QList<QPair<QString, QString>>();
    const CrashFormFields fields =
        formFields(path, m_facts, systemFacts, QDateTime::currentDateTime());

    HttpRequest request("POST", submissionURL);
    request.setHeader("Content-Type", "multipart/form-data; boundary=" + kBoundary);
    request.setHeader("User-Agent", kUserAgent);
    request.setBody(GenerateFormData(fields, kBoundary));
    LOG_VERBOSE("Sending crash log {} to {}", path, submissionURL.toString());

    HttpTransport::Callbacks callbacks;
    callbacks.finished = [this](const HttpResponse& response) {
        if (response.isTransportFailure()) {
            didFailWithError(response.errorText);
            return;
        }
        didReceiveResponse(response);
        didReceiveData(response.body);
        didFinishLoading();
    };
    m_connection = m_transport.send(std::move(request), std::move(callbacks));
}

void QVCrashReportSender::didReceiveResponse(const HttpResponse& response) {
    LOG_VERBOSE("Crash log answer: status {}", response.status);
    m_responseData.clear();
}

void QVCrashReportSender::didReceiveData(const QByteArray& data) { m_responseData += data; }

void QVCrashReportSender::didFinishLoading() {
    if (m_finishedHandler) {
        m_finishedHandler();
    }
    m_center.post(kFinishedNotification);
}

void QVCrashReportSender::didFailWithError(const QString& description) {
    LOG_ERROR("ERROR: {}", description);
}
