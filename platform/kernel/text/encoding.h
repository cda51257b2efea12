/// @file encoding.h
/// Between the host's texts, which are UTF-8, and those of programs, which are of the code page in use.
#pragma once

#include <string>
#include <string_view>

namespace platform::kernel {

/// Characters that the page lacks become its best fit or "?".
std::string AnsiFromUtf8(std::string_view text);
std::string AnsiFromWide(std::u16string_view text);
std::string Utf8FromAnsi(std::string_view text);

/// @returns a text of the code page in use in capitals.
std::string Upper(std::string text);

}  // namespace platform::kernel
