#include "registry/names.h"

#include "kernel/text/encoding.h"

namespace platform::registry {

void AppendFolded(std::string& to, std::string_view name) {
    const std::size_t begin = to.size();
    to.append(name);
    unsigned char all = 0;
    for (std::size_t i = begin; i < to.size(); ++i) {
        const auto character = static_cast<unsigned char>(to[i]);
        all |= character;
        to[i] = static_cast<char>(character >= 'a' && character <= 'z' ? character - ('a' - 'A') : character);
    }
    if (all >= 0x80) {
        CharUpperBuffA(to.data() + begin, static_cast<DWORD>(name.size()));
        to.replace(begin, name.size(), kernel::Utf8FromAnsi(std::string_view(to).substr(begin)));
    }
}

LONG SplitKeyPath(std::string_view path, std::vector<KeyName>& names) {
    if (path.starts_with('\\')) {
        return ERROR_BAD_PATHNAME;
    }
    // CharNextA: the second byte of a double-byte character may look like a backslash.
    const std::string text(path);
    const char* at = text.c_str();
    while (*at) {
        const char* end = at;
        while (*end && *end != '\\') {
            end = CharNextA(end);
        }
        const std::string_view name(at, static_cast<std::size_t>(end - at));
        if (name.size() > kMostKeyName) {
            return ERROR_INVALID_PARAMETER;
        }
        if (!name.empty()) {
            AppendFolded(names.emplace_back(KeyName{kernel::Utf8FromAnsi(name), {}}).folded, name);
        }
        at = *end ? end + 1 : end;
    }
    return ERROR_SUCCESS;
}

}  // namespace platform::registry
