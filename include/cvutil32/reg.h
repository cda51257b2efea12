/// @file reg.h
/// `Reg_`: settings of an application in the registry, in the manner of the old initialisation files.
///
/// A setting is found by a root key, a section and a name, and is a text (`REG_SZ`) or a 32-bit number (`REG_DWORD`).
/// All sections lie below REG_BASEPATH, the product family's own key; a section may be a path of several levels
/// ("Viewer\\Windows"), and null is the base key itself. Base path and section together have at most 255 characters; a
/// longer one is refused like a key that cannot be opened.
///
/// A window that comes back where it was left:
///
///     void SavePlace(HWND window) {
///         RECT place;
///         GetWindowRect(window, &place);
///         Reg_WriteProfileInt(HKEY_CURRENT_USER, "Viewer", "Left", place.left);
///         Reg_WriteProfileInt(HKEY_CURRENT_USER, "Viewer", "Top", place.top);
///         Reg_WriteProfileString(HKEY_CURRENT_USER, "Viewer", "Folder", currentFolder);
///     }
///
///     void RestorePlace(HWND window) {
///         int left = (int)Reg_GetProfileInt(HKEY_CURRENT_USER, "Viewer", "Left", 40);
///         int top = (int)Reg_GetProfileInt(HKEY_CURRENT_USER, "Viewer", "Top", 40);
///         SetWindowPos(window, NULL, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
///         Reg_GetProfileString(HKEY_CURRENT_USER, "Viewer", "Folder", "C:\\", currentFolder, MAX_PATH);
///     }
///
/// Keys are opened by making them, so that a read leaves an empty key behind where there was none. Reading closes the
/// key again; Reg_WriteProfileString() and Reg_WriteProfileInt() leave theirs open for the life of the process, which
/// is why they are meant for settings that are stored now and then, when a dialog closes or the program ends. For many
/// writes open the section once with Reg_OpenBaseUserKey() and write into it with the system's own calls.
///
/// There is nothing for whole sections: CSTRING::RegEnumKeyA() lists those below a key, RegDeleteKeyA() deletes one.
///
/// Texts are stored without their NUL, as many bytes as they are long; Reg_GetProfileString() puts one behind them, the
/// system's RegQueryValueExA does not. A text that does not fit whole counts as missing: the buffer then holds the default.
/// Numbers are unsigned: cast the result where negative ones are stored.
///
/// Nothing is kept between calls: each one sees what any process wrote last. The functions may be called on any thread.
#pragma once

#include "cvapi.h"

/// The key below which all sections lie.
#define REG_BASEPATH "Software\\Calverin\\Velmora\\"

/// Opens a section's key below HKEY_CURRENT_USER, with all rights, and makes it if it is missing.
/// @param section  null is the base key.
/// @return the key, to be closed with Reg_CloseKey(); null if it cannot be opened.
CVAPI(HKEY) Reg_OpenBaseUserKey(const char* section);

/// Opens the same key as Reg_OpenBaseUserKey() does, also below HKEY_CURRENT_USER: settings of the machine are kept
/// with the user's, where they can be written.
/// @param section  null is the base key.
/// @return the key, to be closed with Reg_CloseKey(); null if it cannot be opened.
CVAPI(HKEY) Reg_OpenBaseMachineKey(const char* section);

/// Reads a number.
/// @param root      HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE or any open key.
/// @param section   null is the base key.
/// @param name      the setting's name.
/// @param fallback  the result if there is no such setting or it is not a `REG_DWORD`.
CVAPI(DWORD) Reg_GetProfileInt(HKEY root, const char* section, const char* name, DWORD fallback);

/// Reads a text, or lists the names of a section's settings.
/// @param root      as for Reg_GetProfileInt().
/// @param section   null is the base key.
/// @param name      the setting's name; null lists names: each one ended by a NUL, another NUL behind the last. A name
///                  that does not fit is left out, a later one that is shorter may still be there.
/// @param fallback  what the buffer gets if there is no such setting, if it is not a `REG_SZ` or does not fit whole, or
///                  if there are no names; cut to the buffer. Null stands for an empty text.
/// @param buffer    receives the text, always ended by a NUL.
/// @param size      bytes in the buffer; with 0 nothing is written.
/// @return the length of the text; of a list, the length of its first name.
CVAPI(DWORD)
Reg_GetProfileString(HKEY root, const char* section, const char* name, const char* fallback, char* buffer, DWORD size);

/// Stores a text, or deletes a setting.
/// @param root     as for Reg_GetProfileInt().
/// @param section  null is the base key.
/// @param name     the setting's name.
/// @param text     null deletes the setting.
/// @return 1 on success, 0 on failure; deleting what is not there fails.
CVAPI(BOOL) Reg_WriteProfileString(HKEY root, const char* section, const char* name, const char* text);

/// Stores a number. Arguments and result as for Reg_WriteProfileString().
CVAPI(BOOL) Reg_WriteProfileInt(HKEY root, const char* section, const char* name, DWORD value);

/// Closes a key.
/// @return the system's error code, 0 on success.
CVAPI(LONG) Reg_CloseKey(HKEY key);

/// Opens a key anywhere, with all rights, and makes it if it is missing.
/// @param parent  an open key or a root.
/// @param path    relative to @p parent, not to the base path; null fails.
/// @param key     receives the key, to be closed with Reg_CloseKey().
/// @return 1 on success, 0 on failure.
CVAPI(BOOL) Reg_CreateKey(HKEY parent, const char* path, HKEY* key);

/// Stores a text anywhere, or deletes a value, making the key if it is missing. Unlike the profile functions it leaves
/// no key open.
/// @param parent  an open key or a root.
/// @param path    relative to @p parent, not to the base path; null fails.
/// @param name    the value's name; null is the key's unnamed value.
/// @param text    null deletes the value.
/// @return 1 on success, 0 on failure.
CVAPI(BOOL) Reg_WriteString(HKEY parent, const char* path, const char* name, const char* text);
