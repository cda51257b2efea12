/// @file fail.h
/// How a call fails.
#pragma once

#include <winbase.h>

namespace platform::base {

/// Sets the calling thread's last error. @returns the result that tells the caller to look at it.
template <class Result>
Result Fail(DWORD error, Result result) {
    SetLastError(error);
    return result;
}

}  // namespace platform::base
