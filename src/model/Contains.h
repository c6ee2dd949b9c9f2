#pragma once

#include <QString>
#include <limits>

// Substring search with a single not-found marker, so that callers can chain a search into a
// slice. An empty substring is never found.
class Contains {
public:
    static constexpr qsizetype NotFound = std::numeric_limits<qsizetype>::max();

    static bool containsString(const QString& text, const QString& substring,
                               Qt::CaseSensitivity options);
    // Literal and case-sensitive.
    static bool containsString(const QString& text, const QString& substring);

    // Start of the first occurrence, or NotFound.
    static qsizetype indexOfSubstring(const QString& text, const QString& substring);
    // Just behind the first occurrence, or NotFound.
    static qsizetype indexAtEndOfSubstring(const QString& text, const QString& substring);

    // The text from the index on, up to (not including) the first separator; the whole
    // remainder when no separator follows, and an empty text for an index past the end.
    static QString substringFromIndex(const QString& text, qsizetype index,
                                      const QString& separator);
};
