// Plain string functions. A null pointer gets the documented neutral result.
#include <windows.h>

#include <cstdint>
#include <cstring>

int WINAPI lstrlenA(LPCSTR text) {
    return text ? static_cast<int>(std::strlen(text)) : 0;
}

LPSTR WINAPI lstrcpyA(LPSTR to, LPCSTR from) {
    if (!to || !from) {
        return nullptr;
    }
    std::memmove(to, from, std::strlen(from) + 1);
    return to;
}

LPSTR WINAPI lstrcpynA(LPSTR to, LPCSTR from, int most) {
    if (!to || !from) {
        return nullptr;
    }
    if (most > 0) {
        const std::size_t length = strnlen(from, static_cast<std::size_t>(most) - 1);
        std::memmove(to, from, length);
        to[length] = '\0';
    }
    return to;
}

LPSTR WINAPI lstrcatA(LPSTR to, LPCSTR from) {
    if (!to || !from) {
        return nullptr;
    }
    lstrcpyA(to + std::strlen(to), from);
    return to;
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
