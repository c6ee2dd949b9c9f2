#include "server/UploadStore.h"

#include <QDir>
#include <QJsonArray>

#include "server/Exchange.h"

namespace orvale_service {
namespace {

QString safeFileName(const QString& name) {
    QString safe;
    for (const QChar c : name.right(100)) {
        const bool keep = c.isLetterOrNumber() || c == QLatin1Char('.') || c == QLatin1Char('-') ||
                          c == QLatin1Char('_');
        safe += keep && c.unicode() < 128 ? c : QLatin1Char('_');
    }
    if (safe.isEmpty() || safe.startsWith(QLatin1Char('.'))) {
        safe.prepend(QLatin1String("file"));
    }
    return safe;
}

}  // namespace

UploadStore::UploadStore(const QString& directory)
    : directory_(QDir(directory).absolutePath()),
      index_(QDir(directory_).filePath(QStringLiteral("index.jsonl"))) {}

bool UploadStore::open(QString* error) {
    if (!QDir().mkpath(directory_)) {
        *error = QStringLiteral("cannot create the uploads folder %1").arg(directory_);
        return false;
    }
    return index_.open(error);
}

QString UploadStore::pathFor(qint64 requestId, int partIndex, const QString& fileName) const {
    const QString name = QStringLiteral("%1-%2-%3")
                             .arg(requestId, 6, 10, QLatin1Char('0'))
                             .arg(partIndex)
                             .arg(safeFileName(fileName));
    return QDir(directory_).filePath(name);
}

void UploadStore::appendIndex(const Exchange& exchange) {
    QJsonObject line = exchange.upload ? exchange.upload->toJson() : QJsonObject();
    line.insert("id", exchange.id);
    line.insert("time", exchange.time);
    line.insert("endpoint", exchange.endpoint);
    line.insert("path", exchange.path);
    line.insert("declared_length",
                exchange.declaredLength ? QJsonValue(*exchange.declaredLength) : QJsonValue());
    line.insert("received_length", exchange.receivedLength);
    line.insert("problems", QJsonArray::fromStringList(exchange.problems));
    line.insert("dropped", exchange.dropped);
    line.insert("status", exchange.dropped ? QJsonValue() : QJsonValue(exchange.status));
    index_.append(line);
}

}  // namespace orvale_service
