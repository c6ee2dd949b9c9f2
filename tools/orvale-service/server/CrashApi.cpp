#include "server/CrashApi.h"

#include <QJsonObject>
#include <QRegularExpression>

#include "server/Exchange.h"
#include "server/FormChecks.h"
#include "server/UploadChecks.h"

namespace orvale_service {
namespace {

const QStringList kMachineFields{
    "machine",     "model",         "physicalMemory",    "busFrequency", "CPUFrequency",
    "CPUFamily",   "CPUType",       "CPUSubtype",        "numberOfCPUs", "physicalCPUs",
    "logicalCPUs", "systemVersion", "systemBuildVersion"};
const QStringList kApplicationFields{"applicationName", "applicationIdentifier",
                                     "applicationVersion", "applicationShortVersion"};

QStringList crashLogProblems(const UploadSummary& upload) {
    QStringList problems;
    QStringList present;
    QString included;
    for (const UploadPart& part : upload.parts) {
        present << part.name;
        if (part.name == QLatin1String("systemInformationIncluded")) {
            included = part.value;
        }
        const char* type = part.isFile ? "application/octet-stream" : "text/plain; charset=utf-8";
        if (part.contentType != QLatin1String(type)) {
            problems << QStringLiteral("part \"%1\" is labelled \"%2\"")
                            .arg(part.name, part.contentType);
        }
        if (part.isFile != (part.name == QLatin1String("crashLog"))) {
            problems << QStringLiteral("part \"%1\" is of the wrong kind").arg(part.name);
        }
    }
    for (const char* required : {"systemInformationIncluded", "crashLog", "date"}) {
        if (!present.contains(QLatin1String(required))) {
            problems << QStringLiteral("missing part \"%1\"").arg(QLatin1String(required));
        }
    }
    if (included != QLatin1String("0") && included != QLatin1String("1")) {
        problems << QStringLiteral("systemInformationIncluded is \"%1\"").arg(included);
    }
    QStringList allowed =
        QStringList{"systemInformationIncluded", "crashLog", "date"} + kApplicationFields;
    if (included == QLatin1String("1")) {
        allowed << kMachineFields;
    }
    problems << UploadChecks::unexpectedFields(upload, allowed);
    return problems;
}

}  // namespace

Endpoints CrashApi::endpoints() {
    return {
        {.name = "crash_log",
         .method = "POST",
         .path = "/crashlogs/submit",
         .body = BodyKind::Multipart,
         .answer = [this](Exchange& exchange) { crashLog(exchange); }},
        {.name = "report_add",
         .method = "POST",
         .path = "/tarn/cr/api/report/add",
         .body = BodyKind::Form,
         .knownKeys = {"description", "version"},
         .freeTextKeys = {"description"},
         .answer = [this](Exchange& exchange) { reportAdd(exchange); }},
    };
}

void CrashApi::crashLog(Exchange& exchange) const {
    if (exchange.upload) {
        const UploadSummary& upload = *exchange.upload;
        exchange.problems << upload.framingError << upload.lengthError;
        exchange.problems.removeAll(QString());
        if (upload.framingOk) {
            exchange.problems << crashLogProblems(upload);
        }
    }
    const QString agent = exchange.headers.value("User-Agent").toString();
    if (agent != QLatin1String("PellCrashReporter")) {
        exchange.problems << QStringLiteral("User-Agent is \"%1\"").arg(agent);
    }
    if (!FormChecks::refuseIfProblems(exchange)) {
        exchange.answer = QJsonObject{{"status", "success"}};
    }
}

void CrashApi::reportAdd(Exchange& exchange) const {
    FormChecks::expectPairs(exchange, {"description", "version"});
    if (!exchange.pair("description").startsWith(QLatin1String("Crashed on "))) {
        exchange.problems << QStringLiteral("description does not start with \"Crashed on \"");
    }
    static const QRegularExpression version(QStringLiteral("^v[^.]+(\\.[^.]+)*\\.[^.]+$"));
    if (!version.match(exchange.pair("version")).hasMatch()) {
        exchange.problems << QStringLiteral("version \"%1\" is not v<short>.<build>")
                                 .arg(exchange.pair("version"));
    }
    if (!FormChecks::refuseIfProblems(exchange)) {
        exchange.answer = QJsonObject{{"status", "success"}};
    }
}

}  // namespace orvale_service
