// Reg_: settings of an application in the registry.
#include "cvutil32/reg.h"

#include <cstring>

namespace {

constexpr std::size_t kMostPath = 256;
constexpr DWORD kMostListedName = 128;

LONG OpenOrCreate(HKEY parent, char const* path, HKEY* key) {
    DWORD disposition = 0;
    return RegCreateKeyExA(parent, path, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr, key,
                           &disposition);
}

/// @return null if the key could not be opened.
HKEY OpenSectionKey(HKEY root, char const* section) {
    char path[kMostPath] = REG_BASEPATH;
    if (section) {
        if (std::strlen(section) >= kMostPath - std::strlen(path)) {
            return nullptr;
        }
        lstrcatA(path, section);
    }
    HKEY key = nullptr;
    return OpenOrCreate(root, path, &key) == ERROR_SUCCESS ? key : nullptr;
}

/// Sets a text without its terminator, or deletes the value; tells whether it worked.
BOOL SetText(HKEY key, char const* name, char const* text) {
    LONG const error = text ? RegSetValueExA(key, name, 0, REG_SZ, reinterpret_cast<BYTE const*>(text),
                                             static_cast<DWORD>(lstrlenA(text)))
                            : RegDeleteValueA(key, name);
    return error == ERROR_SUCCESS;
}

/// Reads a text into the buffer; what does not fit together with a terminator counts as missing.
bool ReadText(HKEY key, char const* name, char* buffer, DWORD size) {
    DWORD type = REG_NONE;
    DWORD used = size;
    if (RegQueryValueExA(key, name, nullptr, &type, reinterpret_cast<BYTE*>(buffer), &used) != ERROR_SUCCESS ||
        type != REG_SZ) {
        return false;
    }
    // An empty value, or one that was stored without its terminator.
    if (used < size) {
        buffer[used] = '\0';
        return true;
    }
    return used > 0 && std::memchr(buffer, '\0', used);
}

/// Lists as many names as fit; tells whether there is any.
bool ListNames(HKEY key, char* buffer, DWORD size) {
    bool any = false;
    DWORD used = 0;
    for (DWORD index = 0;; ++index) {
        char name[kMostListedName] = "";
        DWORD length = sizeof name;
        LONG const error = RegEnumValueA(key, index, name, &length, nullptr, nullptr, nullptr, nullptr);
        if (error == ERROR_MORE_DATA || error == ERROR_OUTOFMEMORY) {
            continue;  // a name that was not delivered; those behind it may be
        }
        if (error != ERROR_SUCCESS) {
            return any;
        }
        if (length + 2 < size - used) {
            std::memcpy(buffer + used, name, length + 1);
            used += length + 1;
            buffer[used] = '\0';
            any = true;
        }
    }
}

}  // namespace

CVAPI(HKEY) Reg_OpenBaseUserKey(const char* section) {
    return OpenSectionKey(HKEY_CURRENT_USER, section);
}

// Below the user's root as well; callers rely on being able to write there.
CVAPI(HKEY) Reg_OpenBaseMachineKey(const char* section) {
    return OpenSectionKey(HKEY_CURRENT_USER, section);
}

CVAPI(DWORD) Reg_GetProfileInt(HKEY root, const char* section, const char* name, DWORD fallback) {
    HKEY const key = OpenSectionKey(root, section);
    if (!key) {
        return fallback;
    }
    DWORD value = 0;
    DWORD type = REG_NONE;
    DWORD size = sizeof value;
    LONG const error = RegQueryValueExA(key, name, nullptr, &type, reinterpret_cast<BYTE*>(&value), &size);
    RegCloseKey(key);
    return error == ERROR_SUCCESS && type == REG_DWORD ? value : fallback;
}

CVAPI(DWORD)
Reg_GetProfileString(HKEY root, const char* section, const char* name, const char* fallback, char* buffer, DWORD size) {
    if (!buffer || size == 0) {
        return 0;
    }
    bool found = false;
    if (HKEY const key = OpenSectionKey(root, section)) {
        found = name ? ReadText(key, name, buffer, size) : ListNames(key, buffer, size);
        RegCloseKey(key);
    }
    if (!found) {
        buffer[0] = '\0';
        if (fallback) {
            lstrcpynA(buffer, fallback, static_cast<int>(size));
        }
    }
    return static_cast<DWORD>(lstrlenA(buffer));
}

// The two writers leave their key open for the life of the process; callers rely on it staying open.

CVAPI(BOOL) Reg_WriteProfileString(HKEY root, const char* section, const char* name, const char* text) {
    HKEY const key = OpenSectionKey(root, section);
    return key ? SetText(key, name, text) : FALSE;
}

CVAPI(BOOL) Reg_WriteProfileInt(HKEY root, const char* section, const char* name, DWORD value) {
    HKEY const key = OpenSectionKey(root, section);
    if (!key) {
        return FALSE;
    }
    return RegSetValueExA(key, name, 0, REG_DWORD, reinterpret_cast<BYTE const*>(&value), sizeof value) ==
           ERROR_SUCCESS;
}

CVAPI(LONG) Reg_CloseKey(HKEY key) {
    return RegCloseKey(key);
}

CVAPI(BOOL) Reg_CreateKey(HKEY parent, const char* path, HKEY* key) {
    return path && OpenOrCreate(parent, path, key) == ERROR_SUCCESS;
}

CVAPI(BOOL) Reg_WriteString(HKEY parent, const char* path, const char* name, const char* text) {
    HKEY key = nullptr;
    if (!Reg_CreateKey(parent, path, &key)) {
        return FALSE;
    }
    BOOL const done = SetText(key, name, text);
    RegCloseKey(key);
    return done;
}
