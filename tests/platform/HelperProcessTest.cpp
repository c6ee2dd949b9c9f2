#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QProcess>
#include <QTemporaryFile>

#include "platform/HelperProcess.h"

namespace {

// What a helper sees at the descriptor: the file's path, or nothing when it was not inherited.
QString seenByHelper(int descriptor, bool prepared) {
    QProcess helper;
    if (prepared) {
        HelperProcess::prepare(helper);
    }
    helper.start(QStringLiteral("readlink"),
                 {QStringLiteral("/proc/self/fd/%1").arg(descriptor)});
    helper.waitForFinished();
    return QString::fromUtf8(helper.readAllStandardOutput()).trimmed();
}

}  // namespace

TEST(HelperProcess, HelpersInheritNoDescriptorOfTheApp) {
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    // Opened the way a logging library opens its file: inheritable.
    const int descriptor = ::open(file.fileName().toLocal8Bit().constData(), O_RDONLY);
    ASSERT_GE(descriptor, 0);
    EXPECT_EQ(seenByHelper(descriptor, false), file.fileName());  // what would leak
    EXPECT_EQ(seenByHelper(descriptor, true), "");
    ::close(descriptor);
    // The standard three stay: the encode tests read ffmpeg's progress from its output.
}
