#pragma once

#include <string>

// What the crash handler writes into its files, fixed when crash capture is switched on.
struct CrashHandlerSetup {
    std::string pendingRecordPath;
    std::string crashLogDirectory;
    std::string applicationName;
    std::string applicationIdentifier;
    std::string applicationVersion;
    std::string executablePath;
    std::string systemDescription;  // "Linux 6.1.0-18-amd64 x86_64"
    std::string hostName;           // the short host name, or empty to leave it out
};

// The process-wide part of crash capture: the handlers of SIGSEGV, SIGBUS, SIGILL, SIGFPE and
// SIGABRT, and the terminate handler that notes an uncaught exception before the abort.
//
// On a crash the signal handler writes the pending record (replacing any earlier one, through
// a temporary file and rename) and a crash log named
// "<application name>_<yyyy-MM-dd-HHmmss>_<host>.crash" ("..._<yyyy-MM-dd-HHmmss>.crash" when
// the host is left out), then dies of the same signal with its default action, so exit status
// and core dumps are what they would have been.
//
// The handler only makes async-signal-safe calls on buffers that install() prepared. The
// time in the crash log and its file name is UTC: converting to local time needs localtime,
// which takes locks and may read time-zone files. glibc's backtrace() is the one exception to
// the rule; install() calls it once, so that the unwinder is loaded before any crash.
//
// The signal stack is an alternate one, so that a stack overflow can still be reported; it is
// set up for the thread that calls install(), since threads do not share alternate stacks.
// A second thread that crashes while the first is being reported waits for the first one's
// end, which takes the process with it.
class CrashHandler {
public:
    // May be called again to change the setup; not while another thread may crash.
    static bool install(const CrashHandlerSetup& setup, std::string* error);
};
