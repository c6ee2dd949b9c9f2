#include <gtest/gtest.h>

#include "model/CompareToVersion.h"

namespace {

struct VersionPair {
    const char* version;
    const char* other;
    int result;
};

void PrintTo(const VersionPair& row, std::ostream* out) {
    *out << '"' << row.version << "\" vs \"" << row.other << '"';
}

class CompareVersions : public testing::TestWithParam<VersionPair> {};

TEST_P(CompareVersions, ComparesComponentsByTheirLeadingIntegers) {
    const QString version = QString::fromUtf8(GetParam().version);
    const QString other = QString::fromUtf8(GetParam().other);
    const int expected = GetParam().result;
    EXPECT_EQ(CompareToVersion::compareToVersion(version, other), expected);
    // The comparison must be antisymmetric, or an update check could flip-flop.
    EXPECT_EQ(CompareToVersion::compareToVersion(other, version), -expected);

    EXPECT_EQ(CompareToVersion::isOlderThanVersion(version, other), expected == -1);
    EXPECT_EQ(CompareToVersion::isNewerThanVersion(version, other), expected == 1);
    EXPECT_EQ(CompareToVersion::isEqualToVersion(version, other), expected == 0);
    EXPECT_EQ(CompareToVersion::isEqualOrOlderThanVersion(version, other), expected != 1);
    EXPECT_EQ(CompareToVersion::isEqualOrNewerThanVersion(version, other), expected != -1);
}

INSTANTIATE_TEST_SUITE_P(
    Pairs, CompareVersions,
    testing::Values(VersionPair{"1.10", "1.9", 1}, VersionPair{"2", "2.0.0", 0},
                    VersionPair{"1.2a", "1.2", 0}, VersionPair{"1.02", "1.2", 0},
                    VersionPair{"1.2", "1.3", -1}, VersionPair{"1.2.1", "1.2", 1},
                    VersionPair{"1.2.0.1", "1.2", 1}, VersionPair{"2.0", "10.0", -1},
                    VersionPair{"1.0", "1.0", 0}, VersionPair{"", "0", 0},
                    VersionPair{"beta", "0.0", 0}, VersionPair{"-1", "0", -1},
                    VersionPair{"1..2", "1.0.2", 0}, VersionPair{"1.9.9", "2", -1}));

}  // namespace
