// Plain string functions. A null or bad pointer gets the documented neutral result: the length 0, a null copy.
#include <windows.h>

#include <cstdint>
#include <cstring>

#include "kernel/memory/probe.h"

using platform::kernel::kBadText;
using platform::kernel::ProbeLength;

int WINAPI lstrlenA(LPCSTR text) {
    const std::size_t length = text ? ProbeLength(text) : 0;
    return length == kBadText ? 0 : static_cast<int>(length);
}

LPSTR WINAPI lstrcpyA(LPSTR to, LPCSTR from) {
    const std::size_t length = ProbeLength(from);
    if (length == kBadText || IsBadWritePtr(to, length + 1)) {
        return nullptr;
    }
    return static_cast<LPSTR>(std::memmove(to, from, length + 1));
}

LPSTR WINAPI lstrcpynA(LPSTR to, LPCSTR from, int most) {
    if (most <= 0) {
        return to;
    }
    const std::size_t length = from ? ProbeLength(from, static_cast<std::size_t>(most) - 1) : kBadText;
    if (length == kBadText || IsBadWritePtr(to, length + 1)) {
        return nullptr;
    }
    std::memmove(to, from, length);
    to[length] = '\0';
    return to;
}

LPSTR WINAPI lstrcatA(LPSTR to, LPCSTR from) {
    const std::size_t length = ProbeLength(to);
    return length != kBadText && lstrcpyA(to + length, from) ? to : nullptr;
}

// Rounds half away from zero; a result that does not fit is -1.
int WINAPI MulDiv(int number, int numerator, int denominator) {
    if (denominator == 0) {
        return -1;
    }
    std::int64_t product = std::int64_t{number} * numerator;
    std::int64_t divisor = denominator;
    if (divisor < 0) {
        divisor = -divisor;
        product = -product;
    }
    product += product >= 0 ? divisor / 2 : -(divisor / 2);
    const std::int64_t result = product / divisor;
    return result > INT32_MAX || result < -INT32_MAX - std::int64_t{1} ? -1 : static_cast<int>(result);
}
