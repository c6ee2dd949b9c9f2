// A process that switches crash capture on and then crashes the way it is told to, so that
// the tests can watch a real crash from the outside.
//
//   orvale-crash-child <null-write|uncaught-exception|kill-segv|stack-overflow>
//                      <pending-record-folder> <crash-log-directory>

#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstring>
#include <stdexcept>

#include "crash/CrashReporter.h"

namespace {

volatile int* volatile g_nowhere = nullptr;
volatile int g_neverReached = -1;

int recurseForever(int depth) {
    volatile char frame[512];
    frame[0] = static_cast<char>(depth);
    if (depth == g_neverReached) {
        return 0;
    }
    // Using the frame after the call keeps the compiler from turning this into a loop.
    return recurseForever(depth + 1) + frame[0];
}

int crash(const char* mode) {
    if (std::strcmp(mode, "null-write") == 0) {
        *g_nowhere = 1;
    } else if (std::strcmp(mode, "uncaught-exception") == 0) {
        throw std::runtime_error("the disk is on fire\nand so is the fan");
    } else if (std::strcmp(mode, "kill-segv") == 0) {
        kill(getpid(), SIGSEGV);
    } else if (std::strcmp(mode, "stack-overflow") == 0) {
        return recurseForever(0);
    }
    std::fprintf(stderr, "unknown mode %s\n", mode);
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        return 2;  // see the usage above
    }
    // The tests crash on purpose; a core file per run would only fill the disk.
    const struct rlimit noCore = {0, 0};
    setrlimit(RLIMIT_CORE, &noCore);

    CrashReporter::Options options = CrashReporter::Options::defaults();
    options.pendingRecordFolder = QString::fromLocal8Bit(argv[2]);
    options.crashLogDirectory = QString::fromLocal8Bit(argv[3]);
    CrashReporter reporter(options);
    QString error;
    if (!reporter.enableCrashReporter(&error)) {
        std::fprintf(stderr, "cannot enable crash capture: %s\n", qPrintable(error));
        return 3;
    }
    return crash(argv[1]);
}
