// Listing what a key holds: subkeys in the order of their names, values in the order in which they were made.
#include <windows.h>

#include <exception>

#include "registry/deliver.h"
#include "registry/handles.h"
#include "registry/store.h"

using namespace platform::registry;

LONG WINAPI RegEnumKeyExA(HKEY key, DWORD index, LPSTR name, LPDWORD size, LPDWORD reserved, LPSTR className,
                          LPDWORD classSize, FILETIME* lastWrite) {
    if (!name || !size || reserved || className || classSize || lastWrite) {
        return ERROR_INVALID_PARAMETER;
    }
    if (!AreGood(size)) {
        return ERROR_NOACCESS;
    }
    return OnKey(key, KEY_ENUMERATE_SUB_KEYS, [&](Store& store, KeyId id) -> LONG {
        const std::vector<std::string>* list = nullptr;
        if (const LONG error = store.List(Query::ListKeys, id, &list)) {
            return error;
        }
        return index < list->size() ? DeliverName((*list)[index], name, size) : ERROR_NO_MORE_ITEMS;
    });
}

LONG WINAPI RegEnumKeyA(HKEY key, DWORD index, LPSTR name, DWORD size) {
    return RegEnumKeyExA(key, index, name, &size, nullptr, nullptr, nullptr, nullptr);
}

LONG WINAPI RegEnumValueA(HKEY key, DWORD index, LPSTR name, LPDWORD nameSize, LPDWORD reserved, LPDWORD type,
                          LPBYTE data, LPDWORD dataSize) {
    if (!name || !nameSize || reserved || (data && !dataSize)) {
        return ERROR_INVALID_PARAMETER;
    }
    if (!AreGood(nameSize, type, dataSize)) {
        return ERROR_NOACCESS;
    }
    return OnKey(key, KEY_QUERY_VALUE, [&](Store& store, KeyId id) -> LONG {
        const std::vector<std::string>* list = nullptr;
        LONG error = store.List(Query::ListValues, id, &list);
        if (error != ERROR_SUCCESS) {
            return error;
        }
        if (index >= list->size()) {
            return ERROR_NO_MORE_ITEMS;
        }
        const std::string& found = (*list)[index];
        if (found.size() >= *nameSize) {
            return ERROR_MORE_DATA;
        }
        if (type || dataSize) {
            const Value* value = nullptr;
            error = store.ReadValue(id, found, &value);
            error = error == ERROR_SUCCESS ? DeliverData(*value, type, data, dataSize) : error;
        }
        return error == ERROR_SUCCESS ? DeliverName(found, name, nameSize) : error;
    });
}
