#pragma once

#include <cstdint>

#include "crash/SignalSafeBuffer.h"

// The pending crash record on disk: UTF-8 text, one "key: value" line per value, under a
// first line that names the layout and its version:
//
//   OrvaleCrashRecord 1
//   timestamp: 1712318096            seconds since the epoch
//   exceptionName: std::runtime_error   only after an uncaught exception
//   exceptionReason: disk on fire       its what(); may be empty
//   signalName: SIGABRT
//   signalCode: SI_TKILL                the si_code's name, or "#" and its number
//   signalAddress: 0x0                  the fault address, lower-case hexadecimal
//
// Values escape backslash, newline and carriage return. Readers ignore keys they do not know.
// Text rather than a binary layout, so that a record can be read by eye when a report looks odd.
namespace CrashRecordLayout {

inline constexpr const char* kFirstLine = "OrvaleCrashRecord 1";
inline constexpr const char* kTimestamp = "timestamp";
inline constexpr const char* kExceptionName = "exceptionName";
inline constexpr const char* kExceptionReason = "exceptionReason";
inline constexpr const char* kSignalName = "signalName";
inline constexpr const char* kSignalCode = "signalCode";
inline constexpr const char* kSignalAddress = "signalAddress";

// The values as the crash handler holds them: plain C strings in static storage.
struct RawRecord {
    std::int64_t timestamp = 0;
    const char* exceptionName = nullptr;  // nullptr: no uncaught exception led to the crash
    const char* exceptionReason = nullptr;
    const char* signalName = "";
    const char* signalCode = "";
    std::uint64_t signalAddress = 0;
};

// Async-signal-safe: the crash handler writes the record with this, and so does every other
// writer, so that there is one layout.
void append(SignalSafeBuffer& buffer, const RawRecord& record);

}  // namespace CrashRecordLayout
