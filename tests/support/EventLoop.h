#pragma once

#include <functional>

// Runs the main thread's event loop until the condition holds or the time is up.
bool waitUntil(const std::function<bool()>& condition, int timeoutMs = 10000);

// Runs the event loop for a while, for checks that something does not happen (late posts).
inline void settle(int ms = 300) {
    waitUntil([] { return false; }, ms);
}
