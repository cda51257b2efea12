// Reading, writing and deleting values.
#include <windows.h>

#include <exception>

#include "registry/deliver.h"
#include "registry/handles.h"
#include "registry/names.h"
#include "registry/store.h"

using namespace platform::registry;

namespace {

// Whether a NUL follows what a caller counted, in memory that need not be there and is none of ours.
__attribute__((no_sanitize("address"))) bool IsNul(const BYTE* at) {
    return platform::kernel::IsReadable(at, 1) && *at == 0;
}

}  // namespace

LONG WINAPI RegQueryValueExA(HKEY key, LPCSTR name, LPDWORD reserved, LPDWORD type, LPBYTE data, LPDWORD size) {
    if (reserved || (data && !size)) {
        return ERROR_INVALID_PARAMETER;
    }
    if (!IsGood(name) || !AreGood(type, size)) {
        return ERROR_NOACCESS;
    }
    return OnKey(key, KEY_QUERY_VALUE, [&](Store& store, KeyId id) -> LONG {
        const Value* value = nullptr;
        const LONG error = store.ReadValue(id, name ? name : "", &value);
        return error == ERROR_SUCCESS ? DeliverData(*value, type, data, size) : error;
    });
}

LONG WINAPI RegSetValueExA(HKEY key, LPCSTR name, DWORD reserved, DWORD type, const BYTE* data, DWORD size) {
    if (!IsGood(name) || !platform::kernel::IsReadable(data, data ? size : 0)) {
        return ERROR_NOACCESS;
    }
    const std::string_view plain = name ? name : "";
    if (reserved || (size && !data) || plain.size() > kMostValueName) {
        return ERROR_INVALID_PARAMETER;
    }
    return OnKey(key, KEY_SET_VALUE, [&](Store& store, KeyId id) -> LONG {
        // Callers often leave the NUL of a text uncounted; where it follows, it is kept all the same. A text that has none
        // is kept without one, and takes no more room when it is read.
        std::string terminated;
        std::string_view bytes(reinterpret_cast<const char*>(data), size);
        if (IsText(type) && size && bytes.back() != '\0' && IsNul(data + size)) {
            terminated.reserve(bytes.size() + 1);
            terminated.append(bytes).push_back('\0');
            bytes = terminated;
        }
        return store.WriteValue(id, plain, type, bytes);
    });
}

LONG WINAPI RegDeleteValueA(HKEY key, LPCSTR name) {
    if (!IsGood(name)) {
        return ERROR_NOACCESS;
    }
    return OnKey(key, KEY_SET_VALUE,
                 [&](Store& store, KeyId id) -> LONG { return store.DeleteValue(id, name ? name : ""); });
}
