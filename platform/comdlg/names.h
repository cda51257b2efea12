/// @file names.h
/// What is typed and chosen in the open-file dialog, as text: patterns, lists of names, paths, results. Needs no window.
#pragma once

#include <windows.h>

#include <commdlg.h>

#include <string>
#include <string_view>
#include <vector>

namespace platform::comdlg {

/// One row of a filter: what it is called and its patterns, separated by semicolons.
struct Filter {
    std::string name;
    std::string patterns;
};

/// Reads pairs of texts up to an empty one. Null gives none.
std::vector<Filter> ReadFilters(const char* pairs);

/// @returns whether a name fits one of the patterns ("*.txt;*.c"). Case does not matter.
bool Matches(std::string_view name, std::string_view patterns);

/// Reads names as people type them: one, or several in quotes and separated by blanks. Quoted and plain text that touch
/// are one name ("my file".txt).
std::vector<std::string> SplitNames(std::string_view text);

/// Writes names as SplitNames reads them.
std::string JoinNames(const std::vector<std::string>& names);

/// Makes a full path out of a typed one: relative ones lie in the folder, "." and ".." are resolved.
std::string FullPath(const std::string& folder, std::string_view typed);

/// What the dialog gives back.
struct Choice {
    std::string folder;              ///< ends without a backslash, but for a drive's root
    std::vector<std::string> names;  ///< within it
};

/// Writes a choice into the record's buffer. @returns 0, or the bytes that lpstrFile would need.
std::size_t WriteChoice(OPENFILENAMEA& record, const Choice& choice);

}  // namespace platform::comdlg
