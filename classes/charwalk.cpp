#include "classes/charwalk.h"

#include <cstring>

namespace charwalk {

namespace {

/// Whether one of the eight bytes from @p text on is 0x80 or above.
bool HasHighByte(char const* text) {
    std::uint64_t bytes;
    std::memcpy(&bytes, text, sizeof bytes);
    return (bytes & 0x8080808080808080u) != 0;
}

}  // namespace

std::uint32_t CountBytes(char const* text, std::uint32_t count) {
    if (!text || count == 0) {
        return 0;
    }
    constexpr std::uint32_t kStep = sizeof(std::uint64_t);
    auto const length = static_cast<std::uint32_t>(count == kAll ? std::strlen(text) : strnlen(text, count));
    std::uint32_t at = 0;
    while (length - at >= kStep && !HasHighByte(text + at)) {
        at += kStep;
    }
    // The last few bytes are looked at together with some that have been seen already.
    if (length - at < kStep && length >= kStep && !HasHighByte(text + length - kStep)) {
        return length;
    }
    while (at != length && static_cast<signed char>(text[at]) > 0) {
        ++at;
    }
    return at;
}

bool HasNul(char const* text, std::uint32_t count) {
    std::uint32_t at = 0;
    for (; count - at >= sizeof(std::uint64_t); at += sizeof(std::uint64_t)) {
        std::uint64_t bytes;
        std::memcpy(&bytes, text + at, sizeof bytes);
        if ((bytes - 0x0101010101010101u) & ~bytes & 0x8080808080808080u) {
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
