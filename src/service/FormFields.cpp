#include "service/FormFields.h"

#include <QSet>
#include <algorithm>

QStringList FormFields::sortedKeys(const QVariantMap& map) {
    QStringList keys = map.keys();
    std::stable_sort(keys.begin(), keys.end(), [](const QString& a, const QString& b) {
        return QString::compare(a, b, Qt::CaseInsensitive) < 0;
    });
    return keys;
}

QByteArray FormFields::textOf(const QVariant& value) {
    if (!value.isValid() || value.isNull()) {
        return {};
    }
    switch (value.typeId()) {
        case QMetaType::Double:
        case QMetaType::Float:
            return QByteArray::number(value.toDouble(), 'g', 17);
        case QMetaType::Bool:
            return value.toBool() ? "1" : "0";
        default:
            return value.toString().toUtf8();
    }
}

void FormFields::append(QList<Field>& fields, const QString& name, const QVariant& value) {
    if (value.typeId() == QMetaType::QVariantMap) {
        const QVariantMap inner = value.toMap();
        for (const QString& key : sortedKeys(inner)) {
            append(fields, QStringLiteral("%1[%2]").arg(name, key), inner.value(key));
        }
        return;
    }
    if (value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList) {
        for (const QVariant& element : value.toList()) {
            append(fields, name + QStringLiteral("[]"), element);
        }
        return;
    }
    if (value.canConvert<QSet<QString>>() && value.typeId() != QMetaType::QString &&
        value.metaType() == QMetaType::fromType<QSet<QString>>()) {
        for (const QString& element : value.value<QSet<QString>>()) {
            fields.append({name, element.toUtf8()});
        }
        return;
    }
    fields.append({name, textOf(value)});
}

QList<FormFields::Field> FormFields::flatten(const QVariantMap& parameters) {
    QList<Field> fields;
    for (const QString& key : sortedKeys(parameters)) {
        append(fields, key, parameters.value(key));
    }
    return fields;
}
