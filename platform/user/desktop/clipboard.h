/// @file clipboard.h
/// What the clipboard and the display have to do with each other.
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

/// The same for the text that was selected last on the host.
bool ReadHostSelection(std::string* utf8);
void WriteHostSelection(const std::string& utf8);

}  // namespace platform::user
