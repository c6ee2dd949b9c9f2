#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "crash/PellSystemInformation.h"

namespace {

// Two x86 cores with two threads each, as the kernel lists them (trimmed).
constexpr const char* kX86CpuInfo =
    "processor\t: 0\nvendor_id\t: GenuineIntel\ncpu family\t: 6\nmodel\t\t: 142\n"
    "model name\t: Intel(R) Core(TM) i5-8250U CPU @ 1.60GHz\ncpu MHz\t\t: 1800.002\n"
    "physical id\t: 0\ncore id\t\t: 0\n\n"
    "processor\t: 1\ncpu family\t: 6\nmodel\t\t: 142\ncpu MHz\t\t: 3400.000\n"
    "physical id\t: 0\ncore id\t\t: 1\n\n"
    "processor\t: 2\ncpu family\t: 6\nmodel\t\t: 142\nphysical id\t: 0\ncore id\t\t: 0\n\n"
    "processor\t: 3\ncpu family\t: 6\nmodel\t\t: 142\nphysical id\t: 0\ncore id\t\t: 1\n";

constexpr const char* kArmCpuInfo =
    "processor\t: 0\nBogoMIPS\t: 50.00\nCPU architecture: 8\nCPU part\t: 0xd0c\n\n"
    "processor\t: 1\nBogoMIPS\t: 50.00\nCPU architecture: 8\nCPU part\t: 0xd0c\n";

class PellSystemInformationTest : public testing::Test {
protected:
    void put(const QString& relativePath, const QByteArray& content) const {
        const QString path = m_root.filePath(relativePath);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    PellSystemInformation read() const {
        return PellSystemInformation(
            {m_root.path(), QStringLiteral("x86_64"), QStringLiteral("6.1.0-18-amd64")});
    }

    QTemporaryDir m_root;
};

}  // namespace

TEST_F(PellSystemInformationTest, OsReleaseFallsBackToTheVendorCopy) {
    put(QStringLiteral("usr/lib/os-release"), "ID=ubuntu\nVERSION_ID='22.04'\n");
    EXPECT_EQ(read().systemVersion(), QStringLiteral("22.04"));

    put(QStringLiteral("etc/os-release"), "ID=arch\nBUILD_ID=rolling\n");
    EXPECT_FALSE(read().systemVersion());  // the first file found decides
}

// ARM processors name no core ids, so their physical count is left out like any fact without
// a source.
TEST_F(PellSystemInformationTest, FactsWithoutSourceAreLeftOutOfTheForm) {
    put(QStringLiteral("sys/class/dmi/id/product_name"), "\n");
    put(QStringLiteral("proc/meminfo"), "MemTotal: lots\n");
    put(QStringLiteral("proc/cpuinfo"), kArmCpuInfo);

    using Fields = QList<QPair<QString, QString>>;
    EXPECT_EQ(read().formFields(), (Fields{{"machine", "x86_64"},
                                           {"CPUFamily", "8"},
                                           {"CPUSubtype", "3340"},
                                           {"numberOfCPUs", "2"},
                                           {"logicalCPUs", "2"},
                                           {"systemBuildVersion", "6.1.0-18-amd64"}}));
}

// The form carries every fact read, so its values check the readers too.
TEST_F(PellSystemInformationTest, AnX86MachineIsNamedInTheFormInReportOrder) {
    put(QStringLiteral("sys/class/dmi/id/product_name"), "ThinkPad X1 Carbon 6th\n");
    put(QStringLiteral("proc/meminfo"), "MemTotal:       16318152 kB\nMemFree:  1 kB\n");
    put(QStringLiteral("proc/cpuinfo"), kX86CpuInfo);
    put(QStringLiteral("etc/os-release"), "NAME=\"Debian GNU/Linux\"\nVERSION_ID=\"12\"\n");

    QStringList names;
    QStringList values;
    for (const auto& [name, value] : read().formFields()) {
        names << name;
        values << value;
    }
    EXPECT_EQ(names, (QStringList{"machine", "model", "physicalMemory", "CPUFrequency", "CPUFamily",
                                  "CPUSubtype", "numberOfCPUs", "physicalCPUs", "logicalCPUs",
                                  "systemVersion", "systemBuildVersion"}));
    // The frequency is the first processor's.
    EXPECT_EQ(values, (QStringList{"x86_64", "ThinkPad X1 Carbon 6th", "16709787648", "1800002000",
                                   "6", "142", "4", "2", "4", "12", "6.1.0-18-amd64"}));
}

TEST(PellSystemInformation, LiveSourcesNameThisMachine) {
    const PellSystemInformation& info = PellSystemInformation::instance();
    EXPECT_TRUE(info.machine());
    EXPECT_TRUE(info.systemBuildVersion());
    EXPECT_GT(info.logicalCPUs().value_or(0), 0u);
    EXPECT_GT(info.physicalMemory().value_or(0), 0u);
}
