#include "server/UploadApi.h"

#include "server/Exchange.h"
#include "server/Fixture.h"
#include "server/FormChecks.h"
#include "server/UploadChecks.h"

namespace orvale_service {
namespace {

QString fieldValue(const Exchange& exchange, const QString& name) {
    for (const NamedValue& field : exchange.upload->fields()) {
        if (field.name == name) {
            return field.value;
        }
    }
    return {};
}

}  // namespace

UploadApi::UploadApi(const Fixture& fixture, const Accounts& accounts)
    : fixture_(fixture), accounts_(accounts) {}

Endpoints UploadApi::endpoints() {
    return {
        {.name = "put_project_file",
         .method = "POST",
         .path = "/api/orvale/put_project_file/",
         .body = BodyKind::Multipart,
         .answer = [this](Exchange& exchange) { putProjectFile(exchange); }},
        {.name = "put_media_library",
         .method = "POST",
         .path = "/api/orvale/put_media_library/",
         .body = BodyKind::Multipart,
         .answer = [this](Exchange& exchange) { putMediaLibrary(exchange); }},
    };
}

void UploadApi::putProjectFile(Exchange& exchange) {
    if (const auto user = admit(exchange)) {
        checkProjectFields(exchange, *user);
        answer(exchange);
    }
}

void UploadApi::putMediaLibrary(Exchange& exchange) {
    if (const auto user = admit(exchange)) {
        checkMediaFields(exchange, *user);
        answer(exchange);
    }
}

// A body that is not a sound multipart message, or a token nobody was given, ends here.
std::optional<QJsonObject> UploadApi::admit(Exchange& exchange) {
    if (!exchange.upload) {
        FormChecks::refuseIfProblems(exchange);
        return std::nullopt;
    }
    const UploadSummary& upload = *exchange.upload;
    if (!upload.framingOk || !upload.lengthOk) {
        exchange.problems << upload.framingError << upload.lengthError;
        exchange.problems.removeAll(QString());
        exchange.refuse(400, QStringLiteral("Malformed multipart body: %1")
                                 .arg(exchange.problems.join(QLatin1String("; "))));
        return std::nullopt;
    }
    return FormChecks::authorize(exchange, accounts_, fieldValue(exchange, "auth_token"));
}

void UploadApi::checkProjectFields(Exchange& exchange, const QJsonObject& user) const {
    const UploadSummary& upload = *exchange.upload;
    QStringList& problems = exchange.problems;
    problems << UploadChecks::partOrder(upload) << UploadChecks::fileParts(upload);
    problems << UploadChecks::unexpectedFields(
        upload, {"auth_token", "folder_id", "output_format", "description", "tags[]"});
    qint64 folder = 0;
    const QStringList folderProblems =
        UploadChecks::integerField(upload, "folder_id", true, &folder);
    problems << folderProblems;
    if (folderProblems.isEmpty() && !fixture_.row("project_category", folder)) {
        problems << QStringLiteral("no folder with id %1").arg(folder);
    }
    if (!FormChecks::hasAccess(user, "projects")) {
        problems << QStringLiteral("the user has no access to projects");
    }
}

void UploadApi::checkMediaFields(Exchange& exchange, const QJsonObject& user) const {
    const UploadSummary& upload = *exchange.upload;
    QStringList& problems = exchange.problems;
    problems << UploadChecks::partOrder(upload) << UploadChecks::fileParts(upload);
    problems << UploadChecks::unexpectedFields(
        upload, {"auth_token", "media_type_id", "output_format", "tags[]"}, "credits_\\d+");
    qint64 category = 0;
    const QStringList categoryProblems =
        UploadChecks::integerField(upload, "media_type_id", false, &category);
    problems << categoryProblems;
    if (categoryProblems.isEmpty() && !fieldValue(exchange, "media_type_id").isNull() &&
        !fixture_.row("media_type", category)) {
        problems << QStringLiteral("no media type with id %1").arg(category);
    }
    for (const NamedValue& field : upload.fields()) {
        if (!field.name.startsWith(QLatin1String("credits_"))) {
            continue;
        }
        if (!fixture_.row("media_attribute_type", field.name.mid(8).toLongLong())) {
            problems << QStringLiteral("no credit with id %1").arg(field.name.mid(8));
        }
        if (field.value.isEmpty()) {
            problems << QStringLiteral("credit field \"%1\" is empty").arg(field.name);
        }
    }
    if (!FormChecks::hasAccess(user, "media")) {
        problems << QStringLiteral("the user has no access to the media library");
    }
}

void UploadApi::answer(Exchange& exchange) {
    const UploadSummary& upload = *exchange.upload;
    if (fieldValue(exchange, "output_format") != QLatin1String("json")) {
        exchange.problems << QStringLiteral("output_format is not \"json\"");
    }
    if (!exchange.problems.isEmpty()) {
        exchange.refuse(200, exchange.problems.join(QLatin1String("; ")));
        return;
    }
    const UploadPart file = upload.files().value(0);
    exchange.answer = QJsonObject{{"root", QJsonObject{
                                               {"status", "success"},
                                               {"message", "File uploaded."},
                                               {"media_id", exchange.id},
                                               {"file_name", file.fileName},
                                               {"size", file.size},
                                           }}};
}

}  // namespace orvale_service
