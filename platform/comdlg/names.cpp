#include "comdlg/names.h"

#include <algorithm>
#include <cctype>
#include <cstring>

#include "kernel/files/wildcards.h"
#include "kernel/text/encoding.h"

namespace platform::comdlg {
namespace {

std::string_view Trimmed(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string WithBackslash(std::string folder) {
    if (!folder.ends_with('\\')) {
        folder += '\\';
    }
    return folder;
}

}  // namespace

std::vector<Filter> ReadFilters(const char* pairs) {
    std::vector<Filter> filters;
    while (pairs && *pairs) {
        Filter filter;
        filter.name = pairs;
        pairs += filter.name.size() + 1;
        filter.patterns = pairs;
        pairs += filter.patterns.size() + 1;
        filters.push_back(std::move(filter));
    }
    return filters;
}

bool Matches(std::string_view name, std::string_view patterns) {
    const std::string capitals = kernel::Upper(std::string(name));
    while (!patterns.empty()) {
        const std::size_t end = std::min(patterns.find(';'), patterns.size());
        const std::string_view pattern = Trimmed(patterns.substr(0, end));
        if (!pattern.empty() && kernel::MatchesWildcards(kernel::Upper(std::string(pattern)), capitals)) {
            return true;
        }
        patterns.remove_prefix(std::min(end + 1, patterns.size()));
    }
    return false;
}

std::vector<std::string> SplitNames(std::string_view text) {
    text = Trimmed(text);
    if (text.find('"') == text.npos) {
        return text.empty() ? std::vector<std::string>() : std::vector<std::string>{std::string(text)};
    }
    std::vector<std::string> names;
    std::string name;
    bool quoted = false;
    for (const char character : std::string(text) + ' ') {
        if (character == '"') {
            quoted = !quoted;
        } else if (character != ' ' || quoted) {
            name += character;
        } else if (!name.empty()) {
            names.push_back(std::move(name));
            name.clear();
        }
    }
    // The last quote may be missing.
    if (const std::string_view last = Trimmed(name); !last.empty()) {
        names.emplace_back(last);
    }
    return names;
}

std::string JoinNames(const std::vector<std::string>& names) {
    if (names.size() == 1) {
        return names.front();
    }
    std::string text;
    for (const std::string& name : names) {
        text += (text.empty() ? "\"" : " \"") + name + '"';
    }
    return text;
}

std::string FullPath(const std::string& folder, std::string_view typed) {
    std::string path(typed);
    std::replace(path.begin(), path.end(), '/', '\\');
    const bool drive = path.size() >= 2 && path[1] == ':' && std::isalpha(static_cast<unsigned char>(path[0]));
    if (!drive) {
        path = path.starts_with('\\') && folder.size() >= 2 ? folder.substr(0, 2) + path : WithBackslash(folder) + path;
    }
    std::string full = path.substr(0, 2);
    full[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(full[0])));
    for (std::size_t at = 2; at < path.size();) {
        const std::size_t begin = std::min(path.find_first_not_of('\\', at), path.size());
        const std::size_t end = std::min(path.find('\\', begin), path.size());
        const std::string part = path.substr(begin, end - begin);
        if (part == "..") {
            full.resize(std::max<std::size_t>(full.rfind('\\') == full.npos ? 2 : full.rfind('\\'), 2));
        } else if (!part.empty() && part != ".") {
            full += '\\' + part;
        }
        at = end;
    }
    return full.size() == 2 ? full + '\\' : full;
}

std::size_t WriteChoice(OPENFILENAMEA& record, const Choice& choice) {
    std::string text;
    if (choice.names.size() == 1) {
        text = WithBackslash(choice.folder) + choice.names.front() + '\0';
    } else {
        text = choice.folder + '\0';
        for (const std::string& name : choice.names) {
            text += name + '\0';
        }
    }
    if (record.Flags & OFN_ALLOWMULTISELECT) {
        text += '\0';
    }
    if (!record.lpstrFile) {
        return 0;
    }
    if (text.size() > record.nMaxFile) {
        return text.size();
    }
    std::memcpy(record.lpstrFile, text.data(), text.size());
    return 0;
}

}  // namespace platform::comdlg
