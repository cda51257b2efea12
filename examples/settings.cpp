// Reg_: a program's settings in the registry.
#include <cvutil32.h>

#include "check.h"

static constexpr char kSection[] = "Example\\Window";  // below REG_BASEPATH; a section may have levels

static void KeepPlace(RECT const& place, char const* folder) {
    Reg_WriteProfileInt(HKEY_CURRENT_USER, kSection, "Left", static_cast<DWORD>(place.left));
    Reg_WriteProfileInt(HKEY_CURRENT_USER, kSection, "Top", static_cast<DWORD>(place.top));
    Reg_WriteProfileString(HKEY_CURRENT_USER, kSection, "Folder", folder);
}

// Many values at once: one key for all of them, by the system's own calls.
static void KeepRecent(char const* const* files, int count) {
    HKEY const key = Reg_OpenBaseUserKey("Example\\Recent");
    for (int i = 0; key && i < count; ++i) {
        char name[8];
        wsprintfA(name, "%d", i);
        RegSetValueExA(key, name, 0, REG_SZ, reinterpret_cast<BYTE const*>(files[i]),
                       static_cast<DWORD>(lstrlenA(files[i])) + 1);
    }
    Reg_CloseKey(key);
}

static void Forget() {
    HKEY const base = Reg_OpenBaseUserKey(nullptr);
    RegDeleteKeyA(base, kSection);
    RegDeleteKeyA(base, "Example\\Recent");
    RegDeleteKeyA(base, "Example");
    Reg_CloseKey(base);
}

int main() {
    KeepPlace(RECT{-5, 40, 0, 0}, "C:\\LETTERS");
    int const left = static_cast<int>(Reg_GetProfileInt(HKEY_CURRENT_USER, kSection, "Left", 0));
    DWORD const width = Reg_GetProfileInt(HKEY_CURRENT_USER, kSection, "Width", 300);
    CHECK(left == -5);
    CHECK(width == 300);  // never stored

    char folder[MAX_PATH];
    DWORD const length = Reg_GetProfileString(HKEY_CURRENT_USER, kSection, "Folder", "C:\\", folder, sizeof folder);
    CHECK(length == 10 && lstrcmpA(folder, "C:\\LETTERS") == 0);
    CHECK(Reg_GetProfileString(HKEY_CURRENT_USER, kSection, "Folder", "C:\\", folder, 6) == 3);  // no room: the default

    char const* const files[] = {"JUNE.TXT", "JULY.TXT"};
    KeepRecent(files, 2);
    char names[64];
    Reg_GetProfileString(HKEY_CURRENT_USER, "Example\\Recent", nullptr, "", names, sizeof names);
    CHECK(lstrcmpA(names, "0") == 0 && lstrcmpA(names + 2, "1") == 0 && !names[4]);

    CHECK(Reg_WriteProfileString(HKEY_CURRENT_USER, kSection, "Folder", nullptr));   // deletes it
    CHECK(!Reg_WriteProfileString(HKEY_CURRENT_USER, kSection, "Folder", nullptr));  // nothing to delete
    Forget();
    return wrong;
}
