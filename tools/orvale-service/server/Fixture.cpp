#include "server/Fixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

namespace orvale_service {
namespace {

qint64 idOf(const QJsonObject& row) {
    const QJsonValue id = row.value(QLatin1String("id"));
    return id.isString() ? id.toString().toLongLong() : id.toInteger(-1);
}

}  // namespace

std::optional<Fixture> Fixture::load(const QString& path, QString* error) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("cannot read the fixture %1: %2").arg(path, file.errorString());
        return std::nullopt;
    }
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &parseError);
    if (!document.isObject()) {
        *error = QStringLiteral("the fixture %1 is not a JSON object: %2")
                     .arg(path, parseError.errorString());
        return std::nullopt;
    }
    Fixture fixture;
    fixture.root_ = document.object();
    fixture.folder_ = QFileInfo(path).absolutePath();
    return fixture;
}

std::optional<QJsonObject> Fixture::userNamed(const QString& username) const {
    for (const QJsonValue& user : root_.value(QLatin1String("users")).toArray()) {
        if (user.toObject().value(QLatin1String("username")).toString() == username) {
            return user.toObject();
        }
    }
    return std::nullopt;
}

std::optional<QJsonObject> Fixture::userWithId(qint64 id) const {
    for (const QJsonValue& user : root_.value(QLatin1String("users")).toArray()) {
        if (idOf(user.toObject()) == id) {
            return user.toObject();
        }
    }
    return std::nullopt;
}

bool Fixture::hasSection(const QString& section) const {
    return root_.value(QLatin1String("catalogue")).toObject().value(section).isArray();
}

QJsonArray Fixture::rows(const QString& section) const {
    return root_.value(QLatin1String("catalogue")).toObject().value(section).toArray();
}

std::optional<QJsonObject> Fixture::row(const QString& section, qint64 id) const {
    for (const QJsonValue& row : rows(section)) {
        if (idOf(row.toObject()) == id) {
            return row.toObject();
        }
    }
    return std::nullopt;
}

QString Fixture::resolve(const QString& relativePath) const {
    return QDir(folder_).filePath(relativePath);
}

}  // namespace orvale_service
