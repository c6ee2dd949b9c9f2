#pragma once

#include <QString>

// Orders dotted version texts part by part on each part's leading integer, so "1.10" is newer
// than "1.9", a missing part counts as 0 ("2" equals "2.0.0") and trailing letters are ignored
// ("1.2a" equals "1.2").
class CompareToVersion {
public:
    // -1 when version is older than other, 0 when equal, 1 when newer.
    static int compareToVersion(const QString& version, const QString& other);

    static bool isOlderThanVersion(const QString& version, const QString& other);
    static bool isNewerThanVersion(const QString& version, const QString& other);
    static bool isEqualToVersion(const QString& version, const QString& other);
    static bool isEqualOrOlderThanVersion(const QString& version, const QString& other);
    static bool isEqualOrNewerThanVersion(const QString& version, const QString& other);
};
