// wsprintfA: formats with rules of their own, among them a limit of 1024 bytes.
#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace {

constexpr std::size_t kMostResultBytes = 1024;

struct Conversion {
    bool left = false;
    bool alternate = false;
    bool zeros = false;
    int width = 0;
    int precision = -1;
    char size = 0;  ///< 'h', 'l' or 0
};

class Output {
  public:
    explicit Output(LPSTR to) : to_(to) {}

    void Put(char character) {
        if (length_ + 1 < kMostResultBytes) {
            to_[length_++] = character;
        }
    }
    void Fill(char character, int count) {
        for (; count > 0; --count) {
            Put(character);
        }
    }
    void Put(const char* text, std::size_t size) {
        for (std::size_t i = 0; i < size; ++i) {
            Put(text[i]);
        }
    }
    int End() {
        to_[length_] = '\0';
        return static_cast<int>(length_);
    }

  private:
    LPSTR to_;
    std::size_t length_ = 0;
};

// Text that fills its field from the left or the right.
void PutField(Output& out, const Conversion& how, const char* text, std::size_t size) {
    const int padding = how.width - static_cast<int>(std::min<std::size_t>(size, kMostResultBytes));
    if (!how.left) {
        out.Fill(how.zeros ? '0' : ' ', padding);
    }
    out.Put(text, size);
    if (how.left) {
        out.Fill(' ', padding);
    }
}

void PutNumber(Output& out, const Conversion& how, std::uint64_t magnitude, unsigned base, bool capitals,
               const char* prefix) {
    const char* const figures = capitals ? "0123456789ABCDEF" : "0123456789abcdef";
    char digits[24];
    std::size_t count = 0;
    do {
        digits[count++] = figures[magnitude % base];
        magnitude /= base;
    } while (magnitude);
    std::reverse(digits, digits + count);
    const int zeros = std::max(0, how.precision - static_cast<int>(count));
    const int padding = how.width - static_cast<int>(std::strlen(prefix) + count) - zeros;
    const bool padZeros = how.zeros && !how.left && how.precision < 0;
    if (!how.left && !padZeros) {
        out.Fill(' ', padding);
    }
    out.Put(prefix, std::strlen(prefix));
    out.Fill('0', zeros + (padZeros ? std::max(0, padding) : 0));
    out.Put(digits, count);
    if (how.left) {
        out.Fill(' ', padding);
    }
}

int ReadNumber(LPCSTR& format) {
    int number = 0;
    while (*format >= '0' && *format <= '9') {
        number = std::min(number * 10 + (*format++ - '0'), 100000);
    }
    return number;
}

LPCSTR ReadConversion(LPCSTR format, Conversion& how) {
    for (;; ++format) {
        if (*format == '-') {
            how.left = true;
        } else if (*format == '#') {
            how.alternate = true;
        } else if (*format == '0') {
            how.zeros = true;
        } else {
            break;
        }
    }
    how.width = ReadNumber(format);
    if (*format == '.') {
        ++format;
        how.precision = ReadNumber(format);
    }
    if (*format == 'l' || *format == 'h') {
        how.size = *format++;
    }
    return format;
}

void PutText(Output& out, const Conversion& how, LPCSTR text) {
    if (!text) {
        text = "(null)";
    }
    PutField(out, how, text,
             how.precision >= 0 ? strnlen(text, static_cast<std::size_t>(how.precision)) : std::strlen(text));
}

void PutWide(Output& out, const Conversion& how, LPCWSTR text) {
    if (!text) {
        PutText(out, how, nullptr);
        return;
    }
    // More than the whole output can hold is not looked at; every unit is at most two bytes of an ANSI page.
    char narrow[2 * kMostResultBytes + 1];
    int units = 0;
    while (units < static_cast<int>(kMostResultBytes) && text[units]) {
        ++units;
    }
    const int size =
        units ? WideCharToMultiByte(CP_ACP, 0, text, units, narrow, sizeof narrow - 1, nullptr, nullptr) : 0;
    narrow[size] = '\0';
    PutText(out, how, narrow);
}

}  // namespace

int WINAPI wvsprintfA(LPSTR buffer, LPCSTR format, va_list arguments) {
    Output out(buffer);
    // The list is passed on by value, so it is read through a copy of it.
    va_list values;
    va_copy(values, arguments);
    while (*format) {
        if (*format != '%') {
            out.Put(*format++);
            continue;
        }
        ++format;
        Conversion how;
        format = ReadConversion(format, how);
        const char kind = *format;
        if (!kind) {
            break;
        }
        ++format;
        switch (kind) {
            case 'd':
            case 'i': {
                int value = va_arg(values, int);
                value = how.size == 'h' ? static_cast<short>(value) : value;
                const std::uint64_t magnitude = value < 0
                                                    ? std::uint64_t{0} - static_cast<std::uint64_t>(std::int64_t{value})
                                                    : static_cast<std::uint64_t>(value);
                PutNumber(out, how, magnitude, 10, false, value < 0 ? "-" : "");
                break;
            }
            case 'u':
            case 'x':
            case 'X': {
                unsigned value = va_arg(values, unsigned);
                value = how.size == 'h' ? static_cast<unsigned short>(value) : value;
                const char* prefix = !how.alternate || kind == 'u' ? "" : kind == 'x' ? "0x" : "0X";
                PutNumber(out, how, value, kind == 'u' ? 10 : 16, kind == 'X', prefix);
                break;
            }
            case 'p': {
                how.precision = static_cast<int>(2 * sizeof(void*));
                PutNumber(out, how, reinterpret_cast<std::uintptr_t>(va_arg(values, void*)), 16, true, "");
                break;
            }
            case 'c':
            case 'C': {
                const int value = va_arg(values, int);
                char text[4] = {static_cast<char>(value)};
                std::size_t size = 1;
                if ((kind == 'C') != (how.size == 'l') && how.size != 'h') {
                    const WCHAR wide = static_cast<WCHAR>(value);
                    size =
                        static_cast<std::size_t>(WideCharToMultiByte(CP_ACP, 0, &wide, 1, text, 4, nullptr, nullptr));
                }
                PutField(out, how, text, size);
                break;
            }
            case 's':
            case 'S':
                if ((kind == 's' && how.size == 'l') || (kind == 'S' && how.size != 'h')) {
                    PutWide(out, how, va_arg(values, LPCWSTR));
                } else {
                    PutText(out, how, va_arg(values, LPCSTR));
                }
                break;
            default:
                // A conversion that does not exist, and "%%", print their character.
                out.Put(kind);
        }
    }
    va_end(values);
    return out.End();
}

int wsprintfA(LPSTR buffer, LPCSTR format, ...) {
    va_list arguments;
    va_start(arguments, format);
    const int length = wvsprintfA(buffer, format, arguments);
    va_end(arguments);
    return length;
}
