/// @file clipboard.h
/// What the clipboard and the display have to do with each other, and with windows that end.
#pragma once

#include <windows.h>

#include <string>

namespace platform::user {

/// @returns whether the host has a clipboard to share texts with.
bool HasHostClipboard();

/// @returns whether the host has a clipboard with text in it, which is stored as UTF-8. May take a moment; lock not
/// held.
bool ReadHostClipboard(std::string* utf8);

/// Gives the host's clipboard a text.
void WriteHostClipboard(const std::string& utf8);

/// A window is about to end: a clipboard that it holds open is closed. Lock not held.
void LeaveClipboard(HWND window);

}  // namespace platform::user
