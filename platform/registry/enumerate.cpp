// Listing what a key holds: subkeys in the order of their names, values in the order in which they were made.
#include <windows.h>

#include <algorithm>
#include <exception>

#include "registry/deliver.h"
#include "registry/handles.h"
#include "registry/store.h"

using namespace platform::registry;

LONG WINAPI RegEnumKeyExA(HKEY key, DWORD index, LPSTR name, LPDWORD size, LPDWORD reserved, LPSTR className,
                          LPDWORD classSize, FILETIME* lastWrite) {
    if (!name || !size || reserved || (className && !classSize)) {
        return ERROR_INVALID_PARAMETER;
    }
    if (!AreGood(size, classSize, lastWrite)) {
        return ERROR_NOACCESS;
    }
    return OnKey(key, KEY_ENUMERATE_SUB_KEYS, [&](Store& store, KeyId id) -> LONG {
        const std::vector<ListedKey>* list = nullptr;
        LONG error = store.ListKeys(id, &list);
        if (error != ERROR_SUCCESS) {
            return error;
        }
        if (index >= list->size()) {
            return ERROR_NO_MORE_ITEMS;
        }
        const ListedKey& found = (*list)[index];
        error = DeliverName(found.name, name, size);
        if (error == ERROR_SUCCESS && classSize) {
            error = DeliverClass(found.className, className, classSize);
        }
        if (lastWrite) {
            *lastWrite = FILETIME{};
        }
        return error;
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
        const std::vector<ListedValue>* list = nullptr;
        LONG error = store.ListValues(id, &list);
        if (error != ERROR_SUCCESS) {
            return error;
        }
        if (index >= list->size()) {
            return ERROR_NO_MORE_ITEMS;
        }
        const ListedValue& found = (*list)[index];
        if (found.name.size() >= *nameSize) {
            return ERROR_MORE_DATA;
        }
        if (type || dataSize) {
            const Value* value = nullptr;
            error = store.ReadValue(id, found.name, &value);
            error = error == ERROR_SUCCESS ? DeliverData(*value, type, data, dataSize) : error;
        }
        return error == ERROR_SUCCESS ? DeliverName(found.name, name, nameSize) : error;
    });
}

LONG WINAPI RegQueryInfoKeyA(HKEY key, LPSTR className, LPDWORD classSize, LPDWORD reserved, LPDWORD subkeys,
                             LPDWORD longestSubkey, LPDWORD longestClass, LPDWORD values, LPDWORD longestValueName,
                             LPDWORD longestData, LPDWORD securitySize, FILETIME* lastWrite) {
    if (reserved || (className && !classSize)) {
        return ERROR_INVALID_PARAMETER;
    }
    return OnKey(key, KEY_QUERY_VALUE, [&](Store& store, KeyId id) -> LONG {
        const std::vector<ListedKey>* keyList = nullptr;
        const std::vector<ListedValue>* valueList = nullptr;
        std::string ownClass;
        LONG error = store.ListKeys(id, &keyList);
        error = error == ERROR_SUCCESS ? store.ListValues(id, &valueList) : error;
        error = error == ERROR_SUCCESS ? store.ClassOf(id, &ownClass) : error;
        if (error != ERROR_SUCCESS) {
            return error;
        }
        DWORD counts[5] = {};
        for (const ListedKey& found : *keyList) {
            counts[0] = std::max(counts[0], static_cast<DWORD>(found.name.size()));
            counts[1] = std::max(counts[1], static_cast<DWORD>(found.className.size()));
        }
        for (const ListedValue& found : *valueList) {
            counts[2] = std::max(counts[2], static_cast<DWORD>(found.name.size()));
            counts[3] = std::max(counts[3], found.size);
        }
        const std::pair<LPDWORD, DWORD> answers[] = {{subkeys, static_cast<DWORD>(keyList->size())},
                                                     {longestSubkey, counts[0]},
                                                     {longestClass, counts[1]},
                                                     {values, static_cast<DWORD>(valueList->size())},
                                                     {longestValueName, counts[2]},
                                                     {longestData, counts[3]},
                                                     {securitySize, 0}};
        for (const auto& [to, number] : answers) {
            if (to) {
                *to = number;
            }
        }
        if (lastWrite) {
            *lastWrite = FILETIME{};
        }
        return classSize ? DeliverClass(ownClass, className, classSize) : ERROR_SUCCESS;
    });
}
