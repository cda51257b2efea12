// What the tests of strings share.
#pragma once

#include <cvutil32/cstring.h>

#include <string>

/// Down to the end of a string, in a count; behind it, in a position.
constexpr unsigned int kAll = 0xFFFFFFFF;

/// The characters themselves; null when the string is not valid.
inline char const* Characters(CSTRING const& string) {
    return string;
}

inline std::string Text(CSTRING const& string) {
    char const* const text = Characters(string);
    return text ? text : "(invalid)";
}
