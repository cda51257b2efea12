#include "kernel/files/wildcards.h"

#include <windows.h>

namespace platform::kernel {
namespace {

std::size_t Width(std::string_view name, std::size_t at) {
    return IsDBCSLeadByte(static_cast<BYTE>(name[at])) && at + 1 < name.size() ? 2 : 1;
}

// What is left of a pattern at the end of a name.
bool FitsEnd(std::string_view rest) {
    const std::size_t other = rest.find_first_not_of("*?");
    return other == rest.npos || (rest[other] == '.' && rest.find_first_not_of("*?", other + 1) == rest.npos);
}

}  // namespace

bool HasWildcards(std::string_view name) {
    return name.find_first_of("*?") != std::string_view::npos;
}

bool MatchesWildcards(std::string_view pattern, std::string_view name) {
    constexpr std::size_t kNone = std::string_view::npos;
    std::size_t p = 0;
    std::size_t n = 0;
    // Where the last star stands and how far it reaches; only it has to be tried again.
    std::size_t star = kNone;
    std::size_t reached = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = ++p;
            reached = n;
        } else if (p < pattern.size() && pattern[p] == '?' && name[n] != '.') {
            ++p;
            n += Width(name, n);
        } else if (p < pattern.size() && pattern[p] == '?') {
            ++p;
        } else if (p < pattern.size() && pattern[p] == name[n]) {
            ++p;
            ++n;
        } else if (star != kNone) {
            reached += Width(name, reached);
            n = reached;
            p = star;
        } else {
            return false;
        }
    }
    return FitsEnd(pattern.substr(p));
}

}  // namespace platform::kernel
