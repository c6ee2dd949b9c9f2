#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "platform/ConfiguredHost.h"
#include "support/ScopedEnvironment.h"

TEST(ConfiguredHost, EnvironmentOverSettingsOverBuildDefaultAndPlainHttpUnlessNamed) {
    QTemporaryDir dir;
    QSettings settings(dir.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    const ConfiguredHost host{"ORVALE_TEST_HOST", QStringLiteral("TestHost"),
                              QStringLiteral("default.example")};
    ScopedEnvironment unset("ORVALE_TEST_HOST", QByteArray());

    EXPECT_EQ(host.resolve(settings), QStringLiteral("default.example"));
    settings.setValue(QStringLiteral("TestHost"), QStringLiteral("127.0.0.1:8080"));
    EXPECT_EQ(host.resolve(settings), QStringLiteral("127.0.0.1:8080"));
    {
        ScopedEnvironment set("ORVALE_TEST_HOST", " 127.0.0.1:9090 ");
        EXPECT_EQ(host.resolve(settings), QStringLiteral("127.0.0.1:9090"));
    }
    settings.setValue(QStringLiteral("TestHost"), QString());
    EXPECT_EQ(host.resolve(settings), QStringLiteral("default.example"));

    // Plain HTTP unless the host names a scheme.
    EXPECT_EQ(ConfiguredHost::address(QStringLiteral("127.0.0.1:8080/site/"), "/demo"),
              QStringLiteral("http://127.0.0.1:8080/site/demo"));
    EXPECT_EQ(ConfiguredHost::address(QStringLiteral("https://example.org"), "/demo"),
              QStringLiteral("https://example.org/demo"));
}
