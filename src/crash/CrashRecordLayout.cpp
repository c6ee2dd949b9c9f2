#include "crash/CrashRecordLayout.h"

namespace {

void appendKey(SignalSafeBuffer& buffer, const char* key) {
    buffer.append(key);
    buffer.append(": ");
}

void appendTextLine(SignalSafeBuffer& buffer, const char* key, const char* value) {
    appendKey(buffer, key);
    buffer.appendEscaped(value);
    buffer.appendChar('\n');
}

}  // namespace

void CrashRecordLayout::append(SignalSafeBuffer& buffer, const RawRecord& record) {
    buffer.append(kFirstLine);
    buffer.appendChar('\n');

    appendKey(buffer, kTimestamp);
    buffer.appendDecimal(record.timestamp);
    buffer.appendChar('\n');

    if (record.exceptionName != nullptr) {
        appendTextLine(buffer, kExceptionName, record.exceptionName);
        appendTextLine(buffer, kExceptionReason, record.exceptionReason);
    }

    appendTextLine(buffer, kSignalName, record.signalName);
    appendTextLine(buffer, kSignalCode, record.signalCode);

    appendKey(buffer, kSignalAddress);
    buffer.append("0x");
    buffer.appendHex(record.signalAddress);
    buffer.appendChar('\n');
}
