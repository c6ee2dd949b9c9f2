#include "CatalogueListing.h"

#include <QJsonArray>
#include <QJsonDocument>

#include "model/CatalogueTexts.h"

namespace {

// A string as a JSON literal, escaped by Qt's own writer.
QString jsonString(const QString& text) {
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.mid(1, array.size() - 2));
}

QString member(const QString& name, const QString& literal) {
    return QStringLiteral("\"%1\": %2").arg(name, literal);
}

template <typename Record>
CatalogueListing::Entry namedEntry(const Record& record) {
    CatalogueListing::Entry entry;
    entry.id = record.ID;
    entry.name = record.name;
    return entry;
}

}  // namespace

QList<CatalogueListing::Entry> CatalogueListing::entries(const ProjectList& projects) {
    QList<Entry> list;
    for (const ProjectPtr& project : projects) {
        list.append(namedEntry(*project));
    }
    return list;
}

QList<CatalogueListing::Entry> CatalogueListing::entries(const FolderList& folders) {
    QList<Entry> list;
    for (const FolderPtr& folder : folders) {
        Entry entry = namedEntry(*folder);
        entry.parentID = folder->parentID;
        entry.depthIndex = folder->depthIndex;
        list.append(entry);
    }
    return list;
}

QList<CatalogueListing::Entry> CatalogueListing::entries(
    const MediaLibraryCategoryList& categories) {
    QList<Entry> list;
    for (const MediaLibraryCategoryPtr& category : categories) {
        Entry entry = namedEntry(*category);
        entry.status = category->status;
        list.append(entry);
    }
    return list;
}

QList<CatalogueListing::Entry> CatalogueListing::entries(const CreditList& credits) {
    QList<Entry> list;
    for (const CreditPtr& credit : credits) {
        Entry entry = namedEntry(*credit);
        entry.status = credit->status;
        list.append(entry);
    }
    return list;
}

QString CatalogueListing::text(const QList<Entry>& entries) {
    QString text;
    for (const Entry& entry : entries) {
        const QString indent = CatalogueTexts::indentation(entry.depthIndex.value_or(0));
        const QString status = entry.status && !entry.status->isEmpty()
                                   ? QStringLiteral(", ") + *entry.status
                                   : QString();
        text += indent + entry.name + QStringLiteral(" (") + QString::number(entry.id) + status +
                QStringLiteral(")\n");
    }
    return text;
}

QString CatalogueListing::json(const QList<Entry>& entries) {
    if (entries.isEmpty()) {
        return QStringLiteral("[]\n");
    }
    QStringList objects;
    for (const Entry& entry : entries) {
        objects << QStringLiteral("  ") + jsonObject(entry);
    }
    return QStringLiteral("[\n") + objects.join(QStringLiteral(",\n")) + QStringLiteral("\n]\n");
}

QString CatalogueListing::jsonObject(const Entry& entry) {
    QStringList members{member(QStringLiteral("id"), QString::number(entry.id)),
                        member(QStringLiteral("name"), jsonString(entry.name))};
    if (entry.parentID) {
        members << member(QStringLiteral("parentID"), QString::number(*entry.parentID));
    }
    if (entry.depthIndex) {
        members << member(QStringLiteral("depthIndex"), QString::number(*entry.depthIndex));
    }
    if (entry.status) {
        members << member(QStringLiteral("status"), jsonString(*entry.status));
    }
    return QLatin1Char('{') + members.join(QStringLiteral(", ")) + QLatin1Char('}');
}
