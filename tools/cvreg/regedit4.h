/// @file regedit4.h
/// Registry files in the REGEDIT4 format: plain text of the code page in use.
///
///     REGEDIT4
///
///     [HKEY_CURRENT_USER\Software\Calverin]
///     @="the unnamed value"
///     "Folder"="C:\\DATA"
///     "Width"=dword:00000280
///     "Bytes"=hex:01,02,03
///     "List"=hex(7):61,00,00
///     "Old"=-
///
///     [-HKEY_CURRENT_USER\Software\Former]
///
/// A list of bytes may go on in the next line, behind a comma and a backslash.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace cvreg {

struct Entry {
    enum Kind { Key, DeletedKey, Value, DeletedValue } kind = Key;
    std::string key;  ///< full path
    std::string name;
    DWORD type = REG_NONE;
    std::string data;  ///< a text's with its NUL
};

/// Reads a whole file.
/// @param error  receives the first line that cannot be understood and why.
/// @returns false, with no entries, when there is such a line.
bool Parse(std::string_view text, std::vector<Entry>* entries, std::string* error);

/// @returns the line of a key, with a blank line before it.
std::string FormatKey(std::string_view path);

/// @returns the line of a value, or lines where it is long. A text that does not come back from quotes as it is, as it
/// holds line ends or no final NUL, is written as bytes.
std::string FormatValue(std::string_view name, DWORD type, std::string_view data);

constexpr char kHeading[] = "REGEDIT4\r\n";

}  // namespace cvreg
