#include "classes/charwalk.h"

#include <algorithm>
#include <cstring>

#include "core/bytes.h"

namespace charwalk {

std::uint32_t CountBytes(char const* text, std::uint32_t count) {
    if (!text || count == 0) {
        return 0;
    }
    auto const length = static_cast<std::uint32_t>(count == kAll ? std::strlen(text) : strnlen(text, count));
    constexpr std::uint32_t kWord = sizeof(std::uint64_t);
    if (length >= kWord) {
        std::uint64_t all = 0;
        bytes::ForEachWord(length, [&](std::size_t at) { all |= bytes::Word(text + at); });
        if (!(all & bytes::kMarks)) {
            return length;
        }
    }
    std::uint32_t at = 0;
    while (length - at >= kWord && !(bytes::Word(text + at) & bytes::kMarks)) {
        at += kWord;
    }
    while (at != length && static_cast<signed char>(text[at]) > 0) {
        ++at;
    }
    return at;
}

bool HasNul(char const* text, std::uint32_t count) {
    if (count < sizeof(std::uint64_t)) {
        return std::find(text, text + count, '\0') != text + count;
    }
    std::uint64_t marks = 0;
    bytes::ForEachWord(count, [&](std::size_t at) { marks |= bytes::NulMarks(bytes::Word(text + at)); });
    return (marks & bytes::kMarks) != 0;
}

}  // namespace charwalk
