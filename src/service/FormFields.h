#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QVariantMap>

// Flattens upload parameters into the text fields of a multipart form: keys sorted
// case-insensitively, arrays as "key[]" per element, nested maps as "key[inner]", sets as one
// field per element under the key; numbers as decimal digits, null as an empty value.
class FormFields {
public:
    using Field = QPair<QString, QByteArray>;

    static QList<Field> flatten(const QVariantMap& parameters);
    static QByteArray textOf(const QVariant& value);

private:
    static void append(QList<Field>& fields, const QString& name, const QVariant& value);
    static QStringList sortedKeys(const QVariantMap& map);
};
