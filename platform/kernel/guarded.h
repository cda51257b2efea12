/// @file guarded.h
/// No exception leaves the layer.
#pragma once

#include <windows.h>

#include <exception>

namespace platform::kernel {

/// Runs a call of the API. @returns its result, or the neutral one with ERROR_NOT_ENOUGH_MEMORY set.
template <class Result, class Call>
Result Guarded(Result neutral, Call call) {
    try {
        return call();
    } catch (const std::exception&) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return neutral;
    }
}

}  // namespace platform::kernel
