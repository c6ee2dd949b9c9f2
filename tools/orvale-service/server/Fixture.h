#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <optional>

namespace orvale_service {

// The data the service answers with, read once from a JSON file: "users" (with passwords and
// permissions), "catalogue" (rows per select_all section, passed through as they are, so a
// fixture can hold the odd values a real service sends) and "site" (the maker's web site).
class Fixture {
public:
    static std::optional<Fixture> load(const QString& path, QString* error);

    QJsonArray users() const { return root_.value(QLatin1String("users")).toArray(); }
    std::optional<QJsonObject> userNamed(const QString& username) const;
    std::optional<QJsonObject> userWithId(qint64 id) const;
    bool hasSection(const QString& section) const;
    QJsonArray rows(const QString& section) const;
    // A row of a section whose "id" is the given one.
    std::optional<QJsonObject> row(const QString& section, qint64 id) const;
    QJsonObject site() const { return root_.value(QLatin1String("site")).toObject(); }
    // Files named by the fixture are found relative to the fixture's own folder.
    QString resolve(const QString& relativePath) const;

private:
    QJsonObject root_;
    QString folder_;
};

}  // namespace orvale_service
