#include "model/TrimmingAdditions.h"

QString TrimmingAdditions::stringByTrimmingLeadingCharactersInSet(const QString& text,
                                                                  const CharacterSet& set) {
    qsizetype start = 0;
    while (start < text.size() && set(text[start])) {
        ++start;
    }
    return text.sliced(start);
}

QString TrimmingAdditions::stringByTrimmingTrailingCharactersInSet(const QString& text,
                                                                   const CharacterSet& set) {
    qsizetype end = text.size();
    while (end > 0 && set(text[end - 1])) {
        --end;
    }
    return text.first(end);
}

bool TrimmingAdditions::whitespaceAndNewlines(QChar c) { return c.isSpace(); }
