// wsprintfA() with any format. Every argument is a pointer to a text that serves as one of wide characters too, so that
// whatever a conversion takes is there.
#include <windows.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(unsigned char const* data, std::size_t size) {
    std::string const format(reinterpret_cast<char const*>(data), size);
    if (std::count(format.begin(), format.end(), '%') > 12) {
        return 0;
    }
    alignas(4) static char const t[8] = "abc";
    static char buffer[1024 + 8];
    std::memset(buffer, '#', sizeof buffer);
    int const length = wsprintfA(buffer, format.c_str(), t, t, t, t, t, t, t, t, t, t, t, t);
    if (length < 0 || length > 1023 || std::strlen(buffer) > static_cast<std::size_t>(length) ||
        buffer[length] != '\0' || buffer[1024] != '#') {
        std::abort();
    }
    return 0;
}
