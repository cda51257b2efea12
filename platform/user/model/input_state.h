/// @file input_state.h
/// What input changes for the whole system.
#pragma once

#include <windows.h>

#include <cstdint>

#include "user/model/thread.h"

namespace platform::user {

/// Guarded by UserLock.
struct InputState {
    POINT cursor{};
    BYTE keys[256] = {};  ///< 0x80 down, 0x01 toggled
    ThreadState* foreground = nullptr;
    ThreadState* buttonThread = nullptr;  ///< took the first button that is down
    std::uint64_t lastNumber = 0;
};
InputState& Input();

}  // namespace platform::user
