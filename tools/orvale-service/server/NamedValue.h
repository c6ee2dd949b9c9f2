#pragma once

#include <QList>
#include <QString>

namespace orvale_service {

// One form field as it arrived. Kept in a list, not a map: order and repeats are what we check.
struct NamedValue {
    QString name;
    QString value;
};

using NamedValues = QList<NamedValue>;

}  // namespace orvale_service
