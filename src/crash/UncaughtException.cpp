#include "crash/UncaughtException.h"

#include <cxxabi.h>

#include <atomic>
#include <cstdlib>
#include <exception>
#include <typeinfo>

#include "crash/SignalSafeBuffer.h"

namespace {

SignalSafeBuffer g_name;
SignalSafeBuffer g_reason;
std::atomic<bool> g_noted{false};
std::terminate_handler g_previous = nullptr;

void noteCurrentException() {
    const std::type_info* type = abi::__cxa_current_exception_type();
    if (type == nullptr) {
        return;  // terminate() for another reason than an escaped exception
    }
    int status = -1;
    char* demangled = abi::__cxa_demangle(type->name(), nullptr, nullptr, &status);
    g_name.clear();
    g_name.append(status == 0 && demangled != nullptr ? demangled : type->name());
    std::free(demangled);

    g_reason.clear();
    try {
        std::rethrow_exception(std::current_exception());
    } catch (const std::exception& exception) {
        g_reason.append(exception.what());
    } catch (...) {
        // Not derived from std::exception: there is no reason to tell.
    }
    g_noted.store(true);
}

void onTerminate() {
    noteCurrentException();
    if (g_previous != nullptr) {
        g_previous();
    }
    std::abort();
}

}  // namespace

void UncaughtException::installTerminateHandler() {
    const std::terminate_handler previous = std::set_terminate(onTerminate);
    if (previous != onTerminate) {
        g_previous = previous;
    }
}

bool UncaughtException::noted() { return g_noted.load(); }

const char* UncaughtException::name() { return g_name.data(); }

const char* UncaughtException::reason() { return g_reason.data(); }
