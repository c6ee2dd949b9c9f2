#pragma once

#include <QJsonValue>
#include <QString>
#include <ostream>

// Readable failure messages for Qt values; gtest finds these by argument-dependent lookup.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QJsonValue& value, std::ostream* out) {
    *out << "QJsonValue(type " << value.type() << ", " << value.toVariant().toString().toStdString()
         << ")";
}
