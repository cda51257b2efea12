#include "gallery/settings.h"

#include <cvutil32.h>

namespace gallery {
namespace {

constexpr char kSection[] = "Gallery";

}  // namespace

std::optional<int> KeptNumber(const char* name) {
    // A missing number gives the fallback back, whichever it is.
    const DWORD number = Reg_GetProfileInt(HKEY_CURRENT_USER, kSection, name, 0);
    if (number == 0 && Reg_GetProfileInt(HKEY_CURRENT_USER, kSection, name, 1) == 1) {
        return std::nullopt;
    }
    return static_cast<int>(number);
}

std::string KeptText(const char* name) {
    char text[256];
    const DWORD length = Reg_GetProfileString(HKEY_CURRENT_USER, kSection, name, nullptr, text, sizeof text);
    return std::string(text, length);
}

void KeepNumber(const char* name, int value) {
    Reg_WriteProfileInt(HKEY_CURRENT_USER, kSection, name, static_cast<DWORD>(value));
}

void KeepText(const char* name, const std::string& value) {
    Reg_WriteProfileString(HKEY_CURRENT_USER, kSection, name, value.c_str());
}

}  // namespace gallery
