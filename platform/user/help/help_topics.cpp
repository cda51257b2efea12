#include "user/help/help_topics.h"

#include <algorithm>

namespace platform::user {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

std::string_view Trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// @returns whether a line begins a topic, and which.
bool IsHeading(std::string_view line, std::string_view* number) {
    line = Trim(line);
    if (line.size() < 3 || line.front() != '[' || line.back() != ']') {
        return false;
    }
    *number = line.substr(1, line.size() - 2);
    return number->find_first_not_of("0123456789") == std::string_view::npos;
}

}  // namespace

std::string FindTopic(std::string_view file, DWORD topic) {
    const std::string wanted = std::to_string(topic);
    std::string text;
    bool inside = false;
    while (!file.empty()) {
        const std::size_t end = std::min(file.find('\n'), file.size());
        const std::string_view line = file.substr(0, end);
        file.remove_prefix(std::min(end + 1, file.size()));
        std::string_view number;
        if (IsHeading(line, &number)) {
            if (inside) {
                break;
            }
            inside = number == wanted;
        } else if (inside) {
            text.append(Trim(line)).append(1, '\n');
        }
    }
    return std::string(Trim(text));
}

}  // namespace platform::user
