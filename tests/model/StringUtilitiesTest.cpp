#include <gtest/gtest.h>

#include "model/Contains.h"
#include "model/TrimmingAdditions.h"

namespace {

TEST(Contains, FindsTheFirstOccurrence) {
    struct Row {
        QString text;
        QString substring;
        qsizetype index;
        qsizetype end;
    };
    const Row rows[] = {{"a=1 a=2", "a=", 0, 2},
                        {"xa=1 a=2", "a=", 1, 3},
                        {"abc", "abc", 0, 3},
                        {"abc", "ABC", Contains::NotFound, Contains::NotFound},
                        {"abc", "abcd", Contains::NotFound, Contains::NotFound},
                        {"abc", "", Contains::NotFound, Contains::NotFound}};
    for (const Row& row : rows) {
        EXPECT_EQ(Contains::indexOfSubstring(row.text, row.substring), row.index)
            << qPrintable(row.text);
        EXPECT_EQ(Contains::indexAtEndOfSubstring(row.text, row.substring), row.end)
            << qPrintable(row.text);
        EXPECT_EQ(Contains::containsString(row.text, row.substring),
                  row.index != Contains::NotFound);
    }
}

TEST(TrimmingAdditions, TrimsOneEndOnly) {
    struct Row {
        QString text;
        QString leading;
        QString trailing;
    };
    const Row rows[] = {{" \n tag \t", "tag \t", " \n tag"},
                        {"tag", "tag", "tag"},
                        {"  ", "", ""},
                        {"", "", ""},
                        {"a b", "a b", "a b"}};
    const auto set = &TrimmingAdditions::whitespaceAndNewlines;
    for (const Row& row : rows) {
        EXPECT_EQ(TrimmingAdditions::stringByTrimmingLeadingCharactersInSet(row.text, set),
                  row.leading);
        EXPECT_EQ(TrimmingAdditions::stringByTrimmingTrailingCharactersInSet(row.text, set),
                  row.trailing);
    }
}

}  // namespace
