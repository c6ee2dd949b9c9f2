#include "crash/SignalNames.h"

#include <csignal>

namespace {

struct CodeName {
    int code;
    const char* name;
};

template <int N>
const char* find(const CodeName (&table)[N], int code) {
    for (const CodeName& entry : table) {
        if (entry.code == code) {
            return entry.name;
        }
    }
    return nullptr;
}

// Codes any signal may carry, whoever sent it.
constexpr CodeName kSenderCodes[] = {
    {SI_USER, "SI_USER"},   {SI_KERNEL, "SI_KERNEL"}, {SI_QUEUE, "SI_QUEUE"},
    {SI_TIMER, "SI_TIMER"}, {SI_MESGQ, "SI_MESGQ"},   {SI_ASYNCIO, "SI_ASYNCIO"},
    {SI_TKILL, "SI_TKILL"},
};

constexpr CodeName kSegvCodes[] = {{SEGV_MAPERR, "SEGV_MAPERR"}, {SEGV_ACCERR, "SEGV_ACCERR"}};

constexpr CodeName kBusCodes[] = {
    {BUS_ADRALN, "BUS_ADRALN"},
    {BUS_ADRERR, "BUS_ADRERR"},
    {BUS_OBJERR, "BUS_OBJERR"},
};

constexpr CodeName kIllCodes[] = {
    {ILL_ILLOPC, "ILL_ILLOPC"}, {ILL_ILLOPN, "ILL_ILLOPN"}, {ILL_ILLADR, "ILL_ILLADR"},
    {ILL_ILLTRP, "ILL_ILLTRP"}, {ILL_PRVOPC, "ILL_PRVOPC"}, {ILL_PRVREG, "ILL_PRVREG"},
    {ILL_COPROC, "ILL_COPROC"}, {ILL_BADSTK, "ILL_BADSTK"},
};

constexpr CodeName kFpeCodes[] = {
    {FPE_INTDIV, "FPE_INTDIV"}, {FPE_INTOVF, "FPE_INTOVF"}, {FPE_FLTDIV, "FPE_FLTDIV"},
    {FPE_FLTOVF, "FPE_FLTOVF"}, {FPE_FLTUND, "FPE_FLTUND"}, {FPE_FLTRES, "FPE_FLTRES"},
    {FPE_FLTINV, "FPE_FLTINV"}, {FPE_FLTSUB, "FPE_FLTSUB"},
};

}  // namespace

const char* SignalNames::signalName(int signal) {
    switch (signal) {
        case SIGSEGV:
            return "SIGSEGV";
        case SIGBUS:
            return "SIGBUS";
        case SIGILL:
            return "SIGILL";
        case SIGFPE:
            return "SIGFPE";
        case SIGABRT:
            return "SIGABRT";
        case SIGTRAP:
            return "SIGTRAP";
        default:
            return nullptr;
    }
}

const char* SignalNames::codeName(int signal, int code) {
    // Codes of zero and below, and SI_KERNEL, say who sent the signal and mean the same for
    // every signal; the other positive codes describe a fault and overlap between signals.
    if (code <= 0 || code == SI_KERNEL) {
        return find(kSenderCodes, code);
    }
    switch (signal) {
        case SIGSEGV:
            return find(kSegvCodes, code);
        case SIGBUS:
            return find(kBusCodes, code);
        case SIGILL:
            return find(kIllCodes, code);
        case SIGFPE:
            return find(kFpeCodes, code);
        default:
            return nullptr;
    }
}
