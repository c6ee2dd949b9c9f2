#include "model/Contains.h"

namespace {

qsizetype find(const QString& text, const QString& substring, Qt::CaseSensitivity options) {
    if (substring.isEmpty()) {
        return Contains::NotFound;
    }
    const qsizetype index = text.indexOf(substring, 0, options);
    return index < 0 ? Contains::NotFound : index;
}

}  // namespace

bool Contains::containsString(const QString& text, const QString& substring,
                              Qt::CaseSensitivity options) {
    return find(text, substring, options) != NotFound;
}

bool Contains::containsString(const QString& text, const QString& substring) {
    return containsString(text, substring, Qt::CaseSensitive);
}

qsizetype Contains::indexOfSubstring(const QString& text, const QString& substring) {
    return find(text, substring, Qt::CaseSensitive);
}

qsizetype Contains::indexAtEndOfSubstring(const QString& text, const QString& substring) {
    const qsizetype index = indexOfSubstring(text, substring);
    return index == NotFound ? NotFound : index + substring.size();
}

QString Contains::substringFromIndex(const QString& text, qsizetype index,
                                     const QString& separator) {
    if (index < 0 || index >= text.size()) {
        return {};
    }
    const QString remainder = text.sliced(index);
    const qsizetype end = indexOfSubstring(remainder, separator);
    return end == NotFound ? remainder : remainder.first(end);
}
