#pragma once

#include <variant>

#include "model/ErrorResponse.h"

// What one service call hands its delegate: the value it asked for, or why there is none.
template <typename Value>
using ServerResult = std::variant<Value, ErrorResponsePtr>;
