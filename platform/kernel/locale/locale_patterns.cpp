#include "kernel/locale/locale_patterns.h"

#include <algorithm>

namespace platform::kernel {
namespace {

// What a run of one of ICU's letters is on Windows.
std::u16string Run(char16_t letter, std::size_t count) {
    switch (letter) {
        case u'y':
        case u'u':
            return std::u16string(count == 2 ? 2 : 4, u'y');
        case u'M':
        case u'L':
            return std::u16string(std::min<std::size_t>(count, 4), u'M');
        case u'a':
        case u'b':
        case u'B':
            return u"tt";
        case u'k':
            return std::u16string(count, u'H');
        case u'K':
            return std::u16string(count, u'h');
        case u'G':
            return {};
        default:
            return std::u16string(count, letter);
    }
}

// The pattern without its quoted parts.
std::string Unquoted(const std::string& pattern) {
    std::string plain;
    bool quoted = false;
    for (const char character : pattern) {
        if (character == '\'') {
            quoted = !quoted;
        } else if (!quoted) {
            plain += character;
        }
    }
    return plain;
}

bool IsLetter(char16_t character) {
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
}

}  // namespace

std::u16string WindowsPattern(std::u16string_view pattern) {
    std::u16string result;
    for (std::size_t at = 0; at < pattern.size();) {
        const char16_t letter = pattern[at];
        if (letter == u'\'') {
            const std::size_t end = std::min(pattern.find(u'\'', at + 1), pattern.size() - 1);
            result += pattern.substr(at, end - at + 1);
            at = end + 1;
        } else if (IsLetter(letter)) {
            const std::size_t end = std::min(pattern.find_first_not_of(letter, at), pattern.size());
            result += Run(letter, end - at);
            at = end;
        } else {
            result += letter;
            ++at;
        }
    }
    while (result.ends_with(u' ')) {
        result.pop_back();
    }
    return result;
}

std::string PatternSeparator(const std::string& pattern, const char* otherwise) {
    const std::string plain = Unquoted(pattern);
    const auto isPart = [](char c) { return IsLetter(static_cast<unsigned char>(c)); };
    const auto first = std::find_if_not(std::find_if(plain.begin(), plain.end(), isPart), plain.end(),
                                        [&](char c) { return isPart(c) || c == ' '; });
    const auto last = std::find_if(first, plain.end(), [&](char c) { return isPart(c) || c == ' '; });
    return first == plain.end() ? otherwise : std::string(first, last);
}

std::string DateOrder(const std::string& pattern) {
    const std::string plain = Unquoted(pattern);
    const std::size_t year = plain.find('y');
    const std::size_t month = plain.find('M');
    const std::size_t day = plain.find('d');
    return year < month && year < day ? "2" : day < month ? "1" : "0";
}

std::string Holds(const std::string& pattern, std::string_view text) {
    return Unquoted(pattern).find(text) == std::string::npos ? "0" : "1";
}

}  // namespace platform::kernel
