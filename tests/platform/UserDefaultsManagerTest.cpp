#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "platform/UserDefaultsManager.h"
#include "support/ServiceRecords.h"

// Reading what is stored, or nothing, is the session's and the maker site's tests' to show.
TEST(UserDefaultsManager, EachChangeReachesTheDiskAndTheNextRun) {
    QTemporaryDir dir;
    const QString settingsFile = dir.filePath(QStringLiteral("Orvale.ini"));
    for (const bool value : {true, false, true}) {
        SCOPED_TRACE(value);
        UserDefaultsManager defaults(settingsFile);
        defaults.setShouldUseV2(value);
        EXPECT_EQ(defaults.shouldUseV2(), value);
        // Written through while the first instance is still alive, not only on destruction.
        EXPECT_TRUE(ServiceRecords::contentsOf(settingsFile)
                        .contains(value ? "shouldUseV2=true" : "shouldUseV2=false"));

        EXPECT_EQ(UserDefaultsManager(settingsFile).shouldUseV2(), value);
    }
}
