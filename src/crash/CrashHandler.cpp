#include "crash/CrashHandler.h"

#include <execinfo.h>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <ctime>

#include "crash/CrashRecordLayout.h"
#include "crash/SignalNames.h"
#include "crash/SignalSafeBuffer.h"
#include "crash/UncaughtException.h"

namespace {

constexpr int kCrashSignals[] = {SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT};
constexpr std::size_t kAltStackSize = 64 * 1024;
constexpr int kMaxFrames = 128;
constexpr int kOtherThreadWaitSeconds = 10;

// Everything the handler touches lives in static storage without destructors, so it is still
// there when a crash happens while the process is already tearing itself down.
struct Prepared {
    SignalSafeBuffer pendingRecordPath;
    SignalSafeBuffer pendingRecordTempPath;
    SignalSafeBuffer crashLogPrefix;  // "<directory>/<application name>_"
    SignalSafeBuffer crashLogSuffix;  // "_<host>.crash", or ".crash" without the host
    SignalSafeBuffer applicationName;
    SignalSafeBuffer crashLogHeader;  // the lines that are the same for every crash
};

struct AtCrash {
    std::atomic<pid_t> reportingThread{0};
    SignalSafeBuffer code;
    SignalSafeBuffer text;
    SignalSafeBuffer path;
    void* frames[kMaxFrames];
};

Prepared g_prepared;
AtCrash g_crash;
alignas(16) char g_altStack[kAltStackSize];

// --- at crash time: async-signal-safe only ---------------------------------------------------

void restoreDefaultActions() {
    struct sigaction action = {};
    action.sa_handler = SIG_DFL;
    sigemptyset(&action.sa_mask);
    for (const int signal : kCrashSignals) {
        sigaction(signal, &action, nullptr);
    }
}

[[noreturn]] void dieOf(int signal) {
    restoreDefaultActions();
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, signal);
    sigprocmask(SIG_UNBLOCK, &set, nullptr);
    raise(signal);
    _exit(128 + signal);  // only if the signal was ignored after all
}

void waitForReportingThread() {
    struct timespec oneSecond = {1, 0};
    for (int i = 0; i < kOtherThreadWaitSeconds; ++i) {
        nanosleep(&oneSecond, nullptr);
    }
}

std::int64_t nowInEpochSeconds() {
    struct timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    return now.tv_sec;
}

// si_addr shares its storage with the sender's pid and uid; it is an address only for
// faults the kernel raised.
std::uint64_t faultAddress(int signal, const siginfo_t* info) {
    if (info == nullptr || info->si_code <= 0 || signal == SIGABRT) {
        return 0;
    }
    return reinterpret_cast<std::uintptr_t>(info->si_addr);
}

const char* nameOf(int signal) {
    const char* name = SignalNames::signalName(signal);
    return name != nullptr ? name : "SIGNAL";
}

void formatCode(int signal, const siginfo_t* info) {
    g_crash.code.clear();
    const int code = info != nullptr ? info->si_code : 0;
    const char* name = SignalNames::codeName(signal, code);
    if (name != nullptr) {
        g_crash.code.append(name);
    } else {
        g_crash.code.appendChar('#');
        g_crash.code.appendDecimal(code);
    }
}

bool writeFile(const char* path, const SignalSafeBuffer& content, mode_t mode) {
    const int fd = open(path, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, mode);
    if (fd < 0) {
        return false;
    }
    const bool written = content.writeTo(fd);
    close(fd);
    return written;
}

void writePendingRecord(int signal, const siginfo_t* info, std::int64_t now) {
    CrashRecordLayout::RawRecord record;
    record.timestamp = now;
    record.exceptionName = UncaughtException::noted() ? UncaughtException::name() : nullptr;
    record.exceptionReason = UncaughtException::reason();
    record.signalName = nameOf(signal);
    record.signalCode = g_crash.code.data();
    record.signalAddress = faultAddress(signal, info);

    g_crash.text.clear();
    CrashRecordLayout::append(g_crash.text, record);
    // Written beside and renamed, so that the next start never finds half a record.
    const char* temp = g_prepared.pendingRecordTempPath.data();
    if (writeFile(temp, g_crash.text, 0600)) {
        rename(temp, g_prepared.pendingRecordPath.data());
    } else {
        unlink(temp);
    }
}

void composeCrashLog(int signal, const siginfo_t* info, std::int64_t now) {
    SignalSafeBuffer& text = g_crash.text;
    text.clear();
    text.append("Process:         ");
    text.append(g_prepared.applicationName.data());
    text.append(" [");
    text.appendDecimal(getpid());
    text.append("]\n");
    text.append(g_prepared.crashLogHeader.data());
    text.append("Date/Time:       ");
    text.appendUtcDateTime(now, " ", ":");
    text.append(" +0000\n\nCrashed Thread:  ");
    text.appendDecimal(syscall(SYS_gettid));
    text.append("\nException Type:  ");
    text.append(nameOf(signal));
    text.append(" (");
    text.append(g_crash.code.data());
    text.append(")\nFault Address:   0x");
    text.appendHex(faultAddress(signal, info), 16);
    text.appendChar('\n');
    if (UncaughtException::noted()) {
        text.append("Exception Name:  ");
        text.appendEscaped(UncaughtException::name());
        text.append("\nException Reason: ");
        text.appendEscaped(UncaughtException::reason());
        text.appendChar('\n');
    }
    text.append("\nBacktrace:\n");
}

void writeCrashLog(int signal, const siginfo_t* info, std::int64_t now) {
    g_crash.path.clear();
    g_crash.path.append(g_prepared.crashLogPrefix.data());
    g_crash.path.appendUtcDateTime(now, "-", "");
    g_crash.path.append(g_prepared.crashLogSuffix.data());

    const int fd = open(g_crash.path.data(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0) {
        return;
    }
    composeCrashLog(signal, info, now);
    g_crash.text.writeTo(fd);
    const int frames = backtrace(g_crash.frames, kMaxFrames);
    backtrace_symbols_fd(g_crash.frames, frames, fd);
    close(fd);
}

void onCrashSignal(int signal, siginfo_t* info, void*) {
    const auto self = static_cast<pid_t>(syscall(SYS_gettid));
    pid_t reporting = 0;
    if (!g_crash.reportingThread.compare_exchange_strong(reporting, self)) {
        if (reporting != self) {
            waitForReportingThread();
        }
        dieOf(signal);
    }
    restoreDefaultActions();
    const std::int64_t now = nowInEpochSeconds();
    formatCode(signal, info);
    writePendingRecord(signal, info, now);
    writeCrashLog(signal, info, now);
    dieOf(signal);
}

// --- installation ----------------------------------------------------------------------------

bool fill(SignalSafeBuffer& buffer, std::initializer_list<const std::string*> parts) {
    buffer.clear();
    for (const std::string* part : parts) {
        buffer.append(part->c_str(), part->size());
    }
    return !buffer.truncated();
}

bool prepare(const CrashHandlerSetup& setup) {
    const std::string tempSuffix = ".writing";
    const std::string separator = "/";
    const std::string underscore = "_";
    const std::string crashSuffix = ".crash";
    const bool withHost = !setup.hostName.empty();
    const std::string header = "Path:            " + setup.executablePath +
                               "\nIdentifier:      " + setup.applicationIdentifier +
                               "\nVersion:         " + setup.applicationVersion +
                               "\nOS Version:      " + setup.systemDescription + "\n" +
                               (withHost ? "Host:            " + setup.hostName + "\n" : "");
    const std::string hostSuffix = withHost ? underscore + setup.hostName : std::string();
    return fill(g_prepared.pendingRecordPath, {&setup.pendingRecordPath}) &&
           fill(g_prepared.pendingRecordTempPath, {&setup.pendingRecordPath, &tempSuffix}) &&
           fill(g_prepared.crashLogPrefix,
                {&setup.crashLogDirectory, &separator, &setup.applicationName, &underscore}) &&
           fill(g_prepared.crashLogSuffix, {&hostSuffix, &crashSuffix}) &&
           fill(g_prepared.applicationName, {&setup.applicationName}) &&
           fill(g_prepared.crashLogHeader, {&header});
}

bool installAltStack() {
    stack_t current = {};
    if (sigaltstack(nullptr, &current) == 0 && (current.ss_flags & SS_DISABLE) == 0) {
        return true;  // the thread has one already; ours would take it away
    }
    stack_t stack = {};
    stack.ss_sp = g_altStack;
    stack.ss_size = sizeof g_altStack;
    return sigaltstack(&stack, nullptr) == 0;
}

bool installSignalHandlers() {
    struct sigaction action = {};
    action.sa_sigaction = onCrashSignal;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    sigemptyset(&action.sa_mask);
    for (const int signal : kCrashSignals) {
        sigaddset(&action.sa_mask, signal);
    }
    for (const int signal : kCrashSignals) {
        if (sigaction(signal, &action, nullptr) != 0) {
            return false;
        }
    }
    return true;
}

}  // namespace

bool CrashHandler::install(const CrashHandlerSetup& setup, std::string* error) {
    const auto failWith = [error](const char* reason) {
        if (error != nullptr) {
            *error = reason;
        }
        return false;
    };
    if (!prepare(setup)) {
        return failWith("crash file paths are too long");
    }
    void* frame = nullptr;
    backtrace(&frame, 1);
    if (!installAltStack()) {
        return failWith(std::strerror(errno));
    }
    if (!installSignalHandlers()) {
        return failWith(std::strerror(errno));
    }
    UncaughtException::installTerminateHandler();
    return true;
}
