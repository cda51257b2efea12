/// @file handles.h
/// Handles of keys: roots and open keys, with what they may be used for.
#pragma once

#include <windows.h>

#include "kernel/memory/probe.h"
#include "registry/database.h"
#include "registry/store.h"

namespace platform::registry {

/// @returns an open handle, or ERROR_OUTOFMEMORY.
LONG OpenHandle(KeyId key, REGSAM access, HKEY* handle);

/// @param needed  the rights that the handle must have.
/// @returns ERROR_INVALID_HANDLE, or ERROR_ACCESS_DENIED for a handle that lacks a right.
LONG FindHandleKey(HKEY handle, REGSAM needed, KeyId* key);

/// @returns ERROR_INVALID_HANDLE for what is no open key; closing a root does nothing.
LONG CloseHandleKey(HKEY handle);

/// Whether an optional name that a caller gave can be read.
inline bool IsGood(LPCSTR name) {
    return !name || kernel::IsReadableText(name);
}

/// Whether optional places for results can be written.
template <class... Results>
bool AreGood(Results*... results) {
    return !((results && IsBadWritePtr(results, sizeof(Results))) || ...);
}

/// Runs a call of the API: no exception leaves it.
template <class Call>
LONG Answer(Call call) {
    try {
        return call();
    } catch (const std::exception&) {
        return ERROR_OUTOFMEMORY;
    }
}

/// Runs a call on the key of a handle that must have been opened with a right, with the store in use: `call(store, key)`.
template <class Call>
LONG OnKey(HKEY handle, REGSAM right, Call call) {
    return Answer([&]() -> LONG {
        KeyId key = 0;
        LONG error = FindHandleKey(handle, right, &key);
        if (error != ERROR_SUCCESS) {
            return error;
        }
        Store::Use store{&error};
        return error == ERROR_SUCCESS ? call(*store, key) : error;
    });
}

}  // namespace platform::registry
