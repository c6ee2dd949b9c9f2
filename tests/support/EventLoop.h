#pragma once

#include <functional>

// Runs the main thread's event loop until the condition holds or the time is up.
bool waitUntil(const std::function<bool()>& condition, int timeoutMs = 10000);
