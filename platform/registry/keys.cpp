// Opening, making and deleting keys.
#include <windows.h>

#include <cstring>
#include <exception>

#include "registry/handles.h"
#include "registry/store.h"

using namespace platform::registry;

LONG WINAPI RegCloseKey(HKEY key) {
    return CloseHandleKey(key);
}

LONG WINAPI RegCreateKeyExA(HKEY key, LPCSTR subkey, DWORD reserved, LPSTR className, DWORD options, REGSAM access,
                            LPSECURITY_ATTRIBUTES, PHKEY result, LPDWORD disposition) {
    if (!subkey) {
        return ERROR_BADKEY;
    }
    if (!result || reserved || className || options != REG_OPTION_NON_VOLATILE) {
        return ERROR_INVALID_PARAMETER;
    }
    if (!IsGood(subkey) || !AreGood(result, disposition)) {
        return ERROR_NOACCESS;
    }
    // Making a subkey needs the right to; opening one that exists does not.
    return OnKey(key, 0, [&](Store& store, KeyId from) -> LONG {
        KeyId found = 0;
        bool created = false;
        LONG error = FindHandleKey(key, KEY_CREATE_SUB_KEY, &from) == ERROR_SUCCESS
                         ? store.CreateKey(from, subkey, &found, &created)
                         : store.FindKey(from, subkey, &found);
        if (error == ERROR_FILE_NOT_FOUND) {
            error = ERROR_ACCESS_DENIED;
        }
        error = error == ERROR_SUCCESS ? OpenHandle(found, access, result) : error;
        if (error == ERROR_SUCCESS && disposition) {
            *disposition = created ? REG_CREATED_NEW_KEY : REG_OPENED_EXISTING_KEY;
        }
        return error;
    });
}

LONG WINAPI RegOpenKeyExA(HKEY key, LPCSTR subkey, DWORD, REGSAM access, PHKEY result) {
    if (!result) {
        return ERROR_INVALID_PARAMETER;
    }
    if (!IsGood(subkey) || !AreGood(result)) {
        return ERROR_NOACCESS;
    }
    *result = nullptr;
    return OnKey(key, 0, [&](Store& store, KeyId from) -> LONG {
        KeyId found = 0;
        const LONG error = store.FindKey(from, subkey ? subkey : "", &found);
        return error == ERROR_SUCCESS ? OpenHandle(found, access, result) : error;
    });
}

LONG WINAPI RegDeleteKeyA(HKEY key, LPCSTR subkey) {
    if (!subkey) {
        return ERROR_INVALID_PARAMETER;
    }
    if (!IsGood(subkey)) {
        return ERROR_NOACCESS;
    }
    return OnKey(key, 0, [&](Store& store, KeyId from) { return store.DeleteKey(from, subkey); });
}
