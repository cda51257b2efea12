#include <fstream>
#include <sstream>

#include "kernel/files/hostfile.h"
#include "kernel/text/encoding.h"
#include "user/help/help_topics.h"

namespace platform::user {

std::string ReadTopics(LPCSTR helpFile) {
    std::string path = helpFile ? helpFile : "";
    const std::size_t name = path.find_last_of("\\/:") == std::string::npos ? 0 : path.find_last_of("\\/:") + 1;
    const std::size_t dot = path.find_last_of('.');
    if (dot != std::string::npos && dot >= name) {
        path.resize(dot);
    }
    path += ".txt";
    std::string host;
    if (name + 4 >= path.size() || kernel::FindHostFile(path, &host) != ERROR_SUCCESS) {
        return {};
    }
    std::ostringstream text;
    text << std::ifstream(host, std::ios::binary).rdbuf();
    std::string utf8 = text.str();
    // Editors put it there, and it is no part of the first line.
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (utf8.starts_with(kByteOrderMark)) {
        utf8.erase(0, kByteOrderMark.size());
    }
    return kernel::AnsiFromUtf8(utf8);
}

}  // namespace platform::user
