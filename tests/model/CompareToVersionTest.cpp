#include <gtest/gtest.h>

#include "model/CompareToVersion.h"

TEST(CompareToVersion, ComparesComponentsByTheirLeadingIntegers) {
    const std::tuple<QString, QString, int> pairs[] = {
        {"1.10", "1.9", 1},   {"2", "2.0.0", 0},   {"1.2a", "1.2", 0},    {"1.02", "1.2", 0},
        {"1.2", "1.3", -1},   {"1.2.1", "1.2", 1}, {"1.2.0.1", "1.2", 1}, {"2.0", "10.0", -1},
        {"1.0", "1.0", 0},    {"", "0", 0},        {"beta", "0.0", 0},    {"-1", "0", -1},
        {"1..2", "1.0.2", 0}, {"1.9.9", "2", -1},
    };
    for (const auto& [version, other, expected] : pairs) {
        SCOPED_TRACE(qPrintable(version + " vs " + other));
        EXPECT_EQ(CompareToVersion::compareToVersion(version, other), expected);
        // The comparison must be antisymmetric, or an update check could flip-flop.
        EXPECT_EQ(CompareToVersion::compareToVersion(other, version), -expected);

        EXPECT_EQ(CompareToVersion::isOlderThanVersion(version, other), expected == -1);
        EXPECT_EQ(CompareToVersion::isNewerThanVersion(version, other), expected == 1);
        EXPECT_EQ(CompareToVersion::isEqualToVersion(version, other), expected == 0);
        EXPECT_EQ(CompareToVersion::isEqualOrOlderThanVersion(version, other), expected != 1);
        EXPECT_EQ(CompareToVersion::isEqualOrNewerThanVersion(version, other), expected != -1);
    }
}
