#include "registry/names.h"

#include "kernel/text/encoding.h"

namespace platform::registry {

std::string Folded(std::string_view name) {
    std::string folded(name);
    bool plain = true;
    for (char& character : folded) {
        if (character >= 'a' && character <= 'z') {
            character = static_cast<char>(character - ('a' - 'A'));
        }
        plain = plain && static_cast<unsigned char>(character) < 0x80;
    }
    if (!plain) {
        CharUpperBuffA(folded.data(), static_cast<DWORD>(folded.size()));
        return kernel::Utf8FromAnsi(folded);
    }
    return folded;
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
            names.push_back({kernel::Utf8FromAnsi(name), Folded(name)});
        }
        at = *end ? end + 1 : end;
    }
    return ERROR_SUCCESS;
}

}  // namespace platform::registry
