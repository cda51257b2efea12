/// @file options.h
/// The gallery's command line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gallery {

struct Options {
    enum class Action { Show, Help, Version, UnknownOption, ValueMissing };

    Action action = Action::Show;
    std::string capturePath;  ///< empty without --capture
    std::string pageName;     ///< empty without --page
    std::string wrong;        ///< the option that was not understood, or that lacks its value
};

/// @param commandLine as WinMain gets it, without the program's name; quoted as Windows programs quote.
Options ParseOptions(std::string_view commandLine);

/// Splits at blanks outside double quotes; a backslash before a quote takes its meaning away.
std::vector<std::string> SplitArguments(std::string_view commandLine);

}  // namespace gallery
