/// @file regedit4.h
/// Registry files in the REGEDIT4 format: plain text of the code page in use.
///
///     REGEDIT4
///
///     ; a remark, which may also stand behind a key or a value
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
/// In quotes `\\` is a backslash and `\"` a quote; any other backslash is one, as files that people write have them ("C:\new").
/// A text may go on in the next line, with the line's end as it is. A list of bytes may do so behind a backslash.
///
/// One thing is this system's own: a key with a line end in its name stands in quotes inside the brackets, so that a bracket
/// that somebody forgot is found out at its line.
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
    int line = 0;      ///< where it begins
};

/// Reads a whole file.
/// @param error  receives the first line that cannot be understood and why.
/// @returns false, with no entries, when there is such a line.
bool Parse(std::string_view text, std::vector<Entry>* entries, std::string* error);

/// Reads a list of bytes: "01,fF,3". @returns whether it is one.
bool ParseBytes(std::string_view list, std::string* bytes);

/// @returns the line of a key, with a blank line before it.
std::string FormatKey(std::string_view path);

/// @returns the line of a value, or lines where it is long. A text that does not come back from quotes as it is, as it
/// holds line ends or no final NUL, is written as bytes.
/// @param lineEnd  what the format itself ends lines with.
std::string FormatValue(std::string_view name, DWORD type, std::string_view data, const char* lineEnd = "\r\n");

constexpr char kHeading[] = "REGEDIT4\r\n";

}  // namespace cvreg
