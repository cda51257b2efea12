/// @file deliver.h
/// Handing texts and data to callers' buffers.
#pragma once

#include <windows.h>

#include <cstring>
#include <string>

#include "registry/store.h"

namespace platform::registry {

inline bool IsText(DWORD type) {
    return type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ;
}

/// Hands over a name. @param size  bytes of the buffer; becomes the length without the NUL. @returns ERROR_MORE_DATA
/// when it does not fit, with nothing written; ERROR_NOACCESS for memory that is none.
inline LONG DeliverName(const std::string& name, LPSTR buffer, LPDWORD size) {
    if (name.size() >= *size) {
        return ERROR_MORE_DATA;
    }
    if (IsBadWritePtr(buffer, name.size() + 1)) {
        return ERROR_NOACCESS;
    }
    std::memcpy(buffer, name.c_str(), name.size() + 1);
    *size = static_cast<DWORD>(name.size());
    return ERROR_SUCCESS;
}

/// Hands over a value. Without a buffer only its size is told; a buffer that is too small gets nothing. A text that was
/// stored without a NUL gets one where the buffer has room for it.
inline LONG DeliverData(const Value& value, LPDWORD type, LPBYTE data, LPDWORD size) {
    if (type) {
        *type = value.type;
    }
    if (!size) {
        return ERROR_SUCCESS;
    }
    const DWORD room = *size;
    *size = static_cast<DWORD>(value.data.size());
    if (!data) {
        return ERROR_SUCCESS;
    }
    if (value.data.size() > room) {
        return ERROR_MORE_DATA;
    }
    if (IsBadWritePtr(data, value.data.size())) {
        return ERROR_NOACCESS;
    }
    std::memcpy(data, value.data.data(), value.data.size());
    if (IsText(value.type) && value.data.size() < room && !value.data.ends_with('\0')) {
        data[value.data.size()] = '\0';
    }
    return ERROR_SUCCESS;
}

}  // namespace platform::registry
