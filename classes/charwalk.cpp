#include "classes/charwalk.h"

#include <cstring>

#include "core/bytes.h"

namespace charwalk {

std::uint32_t CountBytes(char const* text, std::uint32_t count) {
    if (!text || count == 0) {
        return 0;
    }
    constexpr std::uint32_t kStep = sizeof(std::uint64_t);
    auto const length = static_cast<std::uint32_t>(count == kAll ? std::strlen(text) : strnlen(text, count));
    if (length >= kStep) {
        // The last word overlaps the one before it.
        std::uint64_t all = bytes::Word(text + length - kStep);
        for (std::uint32_t at = 0; at < length - kStep; at += kStep) {
            all |= bytes::Word(text + at);
        }
        if (!bytes::HasHigh(all)) {
            return length;
        }
    }
    std::uint32_t at = 0;
    while (length - at >= kStep && !bytes::HasHigh(bytes::Word(text + at))) {
        at += kStep;
    }
    while (at != length && static_cast<signed char>(text[at]) > 0) {
        ++at;
    }
    return at;
}

bool HasNul(char const* text, std::uint32_t count) {
    std::uint32_t at = 0;
    for (; count - at >= sizeof(std::uint64_t); at += sizeof(std::uint64_t)) {
        if (bytes::HasNul(bytes::Word(text + at))) {
            return true;
        }
    }
    for (; at < count; ++at) {
        if (!text[at]) {
            return true;
        }
    }
    return false;
}

}  // namespace charwalk
