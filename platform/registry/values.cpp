// Reading, writing and deleting values.
#include <windows.h>

#include <exception>

#include "registry/deliver.h"
#include "registry/handles.h"
#include "registry/names.h"
#include "registry/store.h"

using namespace platform::registry;

LONG WINAPI RegQueryValueExA(HKEY key, LPCSTR name, LPDWORD reserved, LPDWORD type, LPBYTE data, LPDWORD size) {
    if (reserved || (data && !size)) {
        return ERROR_INVALID_PARAMETER;
    }
    return OnKey(key, KEY_QUERY_VALUE, [&](Store& store, KeyId id) -> LONG {
        const Value* value = nullptr;
        const LONG error = store.ReadValue(id, name ? name : "", &value);
        return error == ERROR_SUCCESS ? DeliverData(*value, type, data, size) : error;
    });
}

LONG WINAPI RegSetValueExA(HKEY key, LPCSTR name, DWORD reserved, DWORD type, const BYTE* data, DWORD size) {
    const std::string_view plain = name ? name : "";
    if (reserved || (size && !data) || plain.size() > kMostValueName) {
        return ERROR_INVALID_PARAMETER;
    }
    return OnKey(key, KEY_SET_VALUE, [&](Store& store, KeyId id) -> LONG {
        // Callers often leave the NUL of a text uncounted; it is kept all the same.
        std::string terminated;
        std::string_view bytes(reinterpret_cast<const char*>(data), size);
        if (IsText(type) && size && bytes.back() != '\0') {
            terminated.reserve(bytes.size() + 1);
            terminated.append(bytes).push_back('\0');
            bytes = terminated;
        }
        return store.WriteValue(id, plain, type, bytes);
    });
}

LONG WINAPI RegDeleteValueA(HKEY key, LPCSTR name) {
    return OnKey(key, KEY_SET_VALUE,
                 [&](Store& store, KeyId id) -> LONG { return store.DeleteValue(id, name ? name : ""); });
}
