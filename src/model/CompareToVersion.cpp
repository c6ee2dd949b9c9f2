#include "model/CompareToVersion.h"

#include <QStringList>
#include <algorithm>

#include "model/NumberScanner.h"

namespace {

qint32 partValue(const QStringList& parts, qsizetype index) {
    return index < parts.size() ? NumberScanner::intValue(parts[index]) : 0;
}

}  // namespace

int CompareToVersion::compareToVersion(const QString& version, const QString& other) {
    if (version == other) {
        return 0;
    }
    const QStringList ours = version.split(QLatin1Char('.'));
    const QStringList theirs = other.split(QLatin1Char('.'));
    const qsizetype count = std::max(ours.size(), theirs.size());
    for (qsizetype i = 0; i < count; ++i) {
        const qint32 a = partValue(ours, i);
        const qint32 b = partValue(theirs, i);
        if (a != b) {
            return a < b ? -1 : 1;
        }
    }
    return 0;
}

bool CompareToVersion::isOlderThanVersion(const QString& version, const QString& other) {
    return compareToVersion(version, other) == -1;
}

bool CompareToVersion::isNewerThanVersion(const QString& version, const QString& other) {
    return compareToVersion(version, other) == 1;
}

bool CompareToVersion::isEqualToVersion(const QString& version, const QString& other) {
    return compareToVersion(version, other) == 0;
}

bool CompareToVersion::isEqualOrOlderThanVersion(const QString& version, const QString& other) {
    return compareToVersion(version, other) != 1;
}

bool CompareToVersion::isEqualOrNewerThanVersion(const QString& version, const QString& other) {
    return compareToVersion(version, other) != -1;
}
