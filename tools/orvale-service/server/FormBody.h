#pragma once

#include <QByteArray>
#include <QStringList>

#include "server/NamedValue.h"

namespace orvale_service {

// Form bodies as the app writes them: "key=value" pairs joined by "&", with nothing escaped. A
// password may therefore hold "&" or "=", so splitting on "&" alone would cut it apart: a piece
// that does not start with a known key continues the value before it when that value is free text.
class FormBody {
public:
    static NamedValues parse(const QByteArray& body, const QStringList& knownKeys,
                             const QStringList& freeTextKeys);

    // Problems with the set of keys: missing, repeated or not expected at all.
    static QStringList keyProblems(const NamedValues& pairs, const QStringList& required,
                                   const QStringList& optional = {});

    // The value of the first pair with the name; a null string when there is none.
    static QString value(const NamedValues& pairs, const QString& name);
};

}  // namespace orvale_service
