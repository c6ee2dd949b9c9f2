#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "platform/UserDefaultsManager.h"

namespace {

class UserDefaultsManagerTest : public testing::Test {
protected:
    QString settingsFile() const { return dir_.filePath(QStringLiteral("Orvale.ini")); }

    QByteArray fileContents() const {
        QFile file(settingsFile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir dir_;
};

}  // namespace

// Reading what is stored, or nothing, is the session's and the maker site's tests' to show.
TEST_F(UserDefaultsManagerTest, EachChangeReachesTheDiskAndTheNextRun) {
    for (const bool value : {true, false, true}) {
        SCOPED_TRACE(value);
        UserDefaultsManager defaults(settingsFile());
        defaults.setShouldUseV2(value);
        EXPECT_EQ(defaults.shouldUseV2(), value);
        // Written through while the first instance is still alive, not only on destruction.
        EXPECT_TRUE(fileContents().contains(value ? "shouldUseV2=true" : "shouldUseV2=false"));

        EXPECT_EQ(UserDefaultsManager(settingsFile()).shouldUseV2(), value);
    }
}
