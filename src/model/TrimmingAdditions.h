#pragma once

#include <QChar>
#include <QString>
#include <functional>

// One-sided trimming. QString::trimmed() always cuts both ends and only white space; the tag
// entry needs an order of its own and other sets of characters.
class TrimmingAdditions {
public:
    // Membership test for one 16-bit unit; surrogate halves are tested one by one.
    using CharacterSet = std::function<bool(QChar)>;

    static QString stringByTrimmingLeadingCharactersInSet(const QString& text,
                                                          const CharacterSet& set);
    static QString stringByTrimmingTrailingCharactersInSet(const QString& text,
                                                           const CharacterSet& set);

    // White space and line breaks, the set the tag entry trims.
    static bool whitespaceAndNewlines(QChar c);
};
