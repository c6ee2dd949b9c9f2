#pragma once

#include <QString>

// Elapsed-time texts as the transcoder prints them. Stateless, but shared like the other
// utilities so that callers need not build one; tests may build their own.
class NSDateUtilities {
public:
    static NSDateUtilities& sharedInstance();

    NSDateUtilities() = default;
    NSDateUtilities(const NSDateUtilities&) = delete;
    NSDateUtilities& operator=(const NSDateUtilities&) = delete;

    // "HH:MM:SS.ss" in milliseconds, seconds rounded to hundredths; a missing part, or one
    // that doesn't start with a number, counts as 0 ("00:01:02.25" gives 62250).
    double millisecondsFromString(const QString& text) const;
};
