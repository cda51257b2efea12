/// @file text.h
/// Texts of the gallery's string table.
#pragma once

#include <windows.h>

#include <string>

namespace gallery {

inline std::string LoadText(HINSTANCE instance, UINT id) {
    char buffer[1024];
    const int length = LoadStringA(instance, id, buffer, sizeof buffer);
    return std::string(buffer, static_cast<std::size_t>(length > 0 ? length : 0));
}

/// @returns the module that made a window: that of the gallery's dialogs and pages holds their resources.
inline HINSTANCE InstanceOf(HWND window) {
    return reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(window, GWLP_HINSTANCE));
}

inline std::string LoadText(HWND window, UINT id) {
    return LoadText(InstanceOf(window), id);
}

}  // namespace gallery
