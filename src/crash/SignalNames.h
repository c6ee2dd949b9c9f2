#pragma once

// Names of signals and of their si_code values, as constant strings the crash handler can
// write without formatting. Codes are named the way the system headers spell them.
namespace SignalNames {

// "SIGSEGV" and so on; nullptr for a signal that is not in the list.
const char* signalName(int signal);

// "SEGV_MAPERR", "SI_USER" and so on; nullptr when the code has no name here, in which case
// the caller writes the number.
const char* codeName(int signal, int code);

}  // namespace SignalNames
