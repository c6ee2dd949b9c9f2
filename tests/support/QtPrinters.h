#pragma once

#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <ostream>

// Readable failure messages for Qt values; gtest finds these by argument-dependent lookup.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QJsonValue& value, std::ostream* out) {
    *out << "QJsonValue(type " << value.type() << ", " << value.toVariant().toString().toStdString()
         << ")";
}

inline void PrintTo(const QStringList& list, std::ostream* out) {
    *out << '[';
    for (qsizetype i = 0; i < list.size(); ++i) {
        *out << (i > 0 ? ", " : "") << '"' << list.at(i).toStdString() << '"';
    }
    *out << ']';
}

inline void PrintTo(const QUrl& url, std::ostream* out) {
    *out << url.toString().toStdString();
}

// Lets test messages take Qt strings: EXPECT_TRUE(x) << someQString.
inline std::ostream& operator<<(std::ostream& out, const QString& text) {
    return out << text.toStdString();
}
