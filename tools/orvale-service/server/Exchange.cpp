#include "server/Exchange.h"

#include <QJsonArray>

#include "server/FormBody.h"

namespace orvale_service {
namespace {

QJsonArray pairList(const NamedValues& pairs) {
    QJsonArray list;
    for (const NamedValue& pair : pairs) {
        list.append(QJsonObject{{"name", pair.name}, {"value", pair.value}});
    }
    return list;
}

}  // namespace

QString Exchange::pair(const QString& name) const { return FormBody::value(pairs, name); }

void Exchange::refuse(int httpStatus, const QString& message) {
    status = httpStatus;
    answerType = "application/json";
    answer = QJsonObject{
        {"root", QJsonObject{{"status", "error"}, {"message", message}}},
    };
}

QJsonObject Exchange::toRecord() const {
    QJsonObject record{
        {"id", id},
        {"time", time},
        {"endpoint", endpoint},
        {"method", method},
        {"path", path},
        {"prefix", prefix},
        {"generation", generation()},
        {"headers", headers},
        {"received_length", receivedLength},
        {"body_complete", bodyComplete},
        {"problems", QJsonArray::fromStringList(problems)},
        {"faults", QJsonArray::fromStringList(faults)},
        {"dropped", dropped},
        {"status", dropped ? QJsonValue() : QJsonValue(status)},
    };
    record.insert("declared_length", declaredLength ? QJsonValue(*declaredLength) : QJsonValue());
    if (!formBody.isEmpty() || !pairs.isEmpty()) {
        record.insert("body", QString::fromUtf8(formBody));
        record.insert("pairs", pairList(pairs));
    }
    if (upload) {
        record.insert("upload", upload->toJson());
    }
    if (!answer.isUndefined()) {
        record.insert("answer", answer);
    }
    return record;
}

}  // namespace orvale_service
