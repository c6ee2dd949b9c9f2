#include "server/FormBody.h"

#include <QSet>

namespace orvale_service {

NamedValues FormBody::parse(const QByteArray& body, const QStringList& knownKeys,
                            const QStringList& freeTextKeys) {
    NamedValues pairs;
    if (body.isEmpty()) {
        return pairs;
    }
    for (const QByteArray& piece : body.split('&')) {
        const qsizetype equals = piece.indexOf('=');
        const QString key = QString::fromUtf8(equals < 0 ? piece : piece.left(equals));
        const bool continuesValue = !pairs.isEmpty() && !knownKeys.contains(key) &&
                                    freeTextKeys.contains(pairs.last().name);
        if (continuesValue) {
            pairs.last().value += QLatin1Char('&') + QString::fromUtf8(piece);
        } else {
            pairs.append({key, equals < 0 ? QString() : QString::fromUtf8(piece.mid(equals + 1))});
        }
    }
    return pairs;
}

QStringList FormBody::keyProblems(const NamedValues& pairs, const QStringList& required,
                                  const QStringList& optional) {
    QStringList problems;
    QSet<QString> seen;
    for (const NamedValue& pair : pairs) {
        if (seen.contains(pair.name)) {
            problems << QStringLiteral("\"%1\" is sent more than once").arg(pair.name);
        } else if (!required.contains(pair.name) && !optional.contains(pair.name)) {
            problems << QStringLiteral("unexpected pair \"%1\"").arg(pair.name);
        }
        seen.insert(pair.name);
    }
    for (const QString& key : required) {
        if (!seen.contains(key)) {
            problems << QStringLiteral("missing pair \"%1\"").arg(key);
        }
    }
    return problems;
}

QString FormBody::value(const NamedValues& pairs, const QString& name) {
    for (const NamedValue& pair : pairs) {
        if (pair.name == name) {
            return pair.value;
        }
    }
    return {};
}

}  // namespace orvale_service
