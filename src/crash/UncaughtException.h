#pragma once

// Notes the exception that escaped when std::terminate runs, so that the crash handler can
// report its type and what() with the abort that follows. The note is kept in static buffers
// that the signal handler may read.
class UncaughtException {
public:
    // Puts the noting handler in front of the current terminate handler, which still runs
    // after it (the library's own prints the exception and aborts). Calling it again is harmless.
    static void installTerminateHandler();

    // Whether an exception was noted; name and reason are empty strings until then.
    static bool noted();
    static const char* name();    // the type, demangled ("std::runtime_error")
    static const char* reason();  // its what(); empty for types not derived from std::exception
};
