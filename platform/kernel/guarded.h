/// @file guarded.h
/// How calls of the API end: no exception leaves the layer, and text goes into the caller's buffer.
#pragma once

#include <windows.h>

#include <cstring>
#include <exception>
#include <string>

#include "base/fail.h"

namespace platform::kernel {

/// Runs a call of the API. @returns its result, or the neutral one with ERROR_NOT_ENOUGH_MEMORY set.
template <class Result, class Call>
Result Guarded(Result neutral, Call call) {
    try {
        return call();
    } catch (const std::exception&) {
        return base::Fail(ERROR_NOT_ENOUGH_MEMORY, neutral);
    }
}

/// Copies a text with its end where it fits. @returns its length, or the size that the buffer needs.
inline DWORD CopyOut(const std::string& text, LPSTR buffer, DWORD size) {
    const auto length = static_cast<DWORD>(text.size());
    if (!buffer || length >= size) {
        return length + 1;
    }
    std::memcpy(buffer, text.c_str(), length + 1);
    return length;
}

}  // namespace platform::kernel
