// CSTRING: texts that the system has.
#include "cvutil32/cstring.h"

#include "classes/charwalk.h"

#include <algorithm>
#include <cstdarg>
#include <cstring>
#include <type_traits>

using charwalk::CountBytes;
using charwalk::kAll;

namespace {

constexpr int kTextSize = 256;
constexpr int kFormatSize = 1024;
constexpr std::uint32_t kRegistrySize = 1024;

/// Formats with a list that came as an untyped pointer: the list itself where lists are pointers, else its address.
template <class List = std::va_list>
int FormatList(char* buffer, char const* format, void* args) {
    if constexpr (std::is_pointer_v<List>) {
        return ::wvsprintfA(buffer, format, static_cast<List>(args));
    } else {
        return ::wvsprintfA(buffer, format, *static_cast<List*>(args));
    }
}

}  // namespace

CSTRING const& CSTRING::GetClassNameA(HWND window) {
    char text[kTextSize] = "";
    if (StandardEntry() && window && ::GetClassNameA(window, text, kTextSize)) {
        Copy(text, kAll);
    }
    return *this;
}

CSTRING const& CSTRING::GetModuleFileNameA(HINSTANCE module) {
    char text[kTextSize] = "";
    if (StandardEntry() && ::GetModuleFileNameA(module, text, kTextSize)) {
        text[kTextSize - 1] = '\0';  // some systems leave a path that they cut without an end
        Copy(text, kAll);
    }
    return *this;
}

CSTRING const& CSTRING::GetProfileStringA(char const* file, char const* section, char const* key,
                                          char const* fallback) {
    char text[kTextSize] = "";
    if (StandardEntry() && ::GetPrivateProfileStringA(section, key, fallback, text, kTextSize, file)) {
        Copy(text, kAll);
    }
    return *this;
}

CSTRING const& CSTRING::LoadStringA(HINSTANCE module, unsigned int id) {
    char text[kTextSize] = "";
    if (StandardEntry() && module && ::LoadStringA(module, id, text, kTextSize)) {
        Copy(text, kAll);
    }
    return *this;
}

CSTRING const& CSTRING::wvsprintfA(char const* format, void* args) {
    char text[kFormatSize] = "";
    if (StandardEntry() && format && args && FormatList(text, format, args)) {
        Copy(text, kAll);
    }
    return *this;
}

CSTRING const& CSTRING::wsprintfA(char const* format, ...) {
    char text[kFormatSize] = "";
    if (StandardEntry() && format) {
        std::va_list args;
        va_start(args, format);
        int const length = ::wvsprintfA(text, format, args);
        va_end(args);
        if (length) {
            Copy(text, kAll);
        }
    }
    return *this;
}

CSTRING const& CSTRING::IDsprintf(HINSTANCE module, unsigned int id, ...) {
    char format[kTextSize] = "";
    char text[kFormatSize] = "";
    if (StandardEntry() && module && ::LoadStringA(module, id, format, kTextSize)) {
        std::va_list args;
        va_start(args, id);
        int const length = ::wvsprintfA(text, format, args);
        va_end(args);
        if (length) {
            Copy(text, kAll);
        }
    }
    return *this;
}

CSTRING const& CSTRING::GetWindowTextA(HWND window) {
    if (!StandardEntry() || !window) {
        return *this;
    }
    int const length = ::GetWindowTextLengthA(window);
    if (length > 0 && Alloc(static_cast<unsigned int>(length) + 1)) {
        int const size = static_cast<int>(std::min<std::uint32_t>(BufLen, 0x7FFFFFFF));
        StrLen = static_cast<std::uint32_t>(::GetWindowTextA(window, Buffer, size));
        ByteCount = CountBytes(Buffer, kAll);
    }
    return *this;
}

CSTRING const& CSTRING::GetDlgItemTextA(HWND dialog, int id) {
    return GetWindowTextA(::GetDlgItem(dialog, id));
}

CSTRING const& CSTRING::GetWindowsDirectoryA() {
    if (!StandardEntry()) {
        return *this;
    }
    UINT const size = ::GetWindowsDirectoryA(nullptr, 0);
    if (size && Alloc(size + 1)) {
        StrLen = ::GetWindowsDirectoryA(Buffer, BufLen);
        ByteCount = CountBytes(Buffer, kAll);
    }
    return *this;
}

void CSTRING::TakeLengths() {
    StrLen = static_cast<std::uint32_t>(std::strlen(Buffer));
    ByteCount = CountBytes(Buffer, kAll);
}

// Data of a value need not be a text: it gets an end behind its last byte, or on it where there is no more room.
void CSTRING::EndData(unsigned int size) {
    if (BufLen) {
        Buffer[std::min(size, BufLen - 1)] = '\0';
    }
}

CSTRING const& CSTRING::RegEnumKeyA(HKEY key, unsigned long index) {
    if (!StandardEntry()) {
        return *this;
    }
    if (!key) {
        Copy("", 0);
        return *this;
    }
    // On failure the cleared buffer is an empty text.
    Alloc(kRegistrySize);
    ::RegEnumKeyA(key, static_cast<DWORD>(index), Buffer, BufLen);
    TakeLengths();
    return *this;
}

CSTRING const& CSTRING::RegEnumValueA(HKEY key, unsigned long index, CSTRING* data) {
    if (!StandardEntry()) {
        return *this;
    }
    LONG error = ERROR_INVALID_PARAMETER;
    if (key && (!data || data->IsValid())) {
        char* const bytes = data ? data->BufferLock(kRegistrySize) : nullptr;
        DWORD dataSize = bytes ? data->GetBufLen(kRegistrySize) : 0;
        Alloc(kRegistrySize);
        DWORD nameSize = BufLen;
        error = ::RegEnumValueA(key, static_cast<DWORD>(index), Buffer, &nameSize, nullptr, nullptr,
                                reinterpret_cast<BYTE*>(bytes), bytes ? &dataSize : nullptr);
        if (bytes) {
            if (error == ERROR_SUCCESS && data != this) {
                data->EndData(dataSize);
            }
            data->BufferUnlock();
        }
        TakeLengths();
    }
    if (error != ERROR_SUCCESS) {
        Copy("", 0);
    }
    return *this;
}

CSTRING const& CSTRING::RegQueryValueA(HKEY key, char const* valueName) {
    if (!StandardEntry()) {
        return *this;
    }
    DWORD size = 0;
    LONG error = ERROR_INVALID_PARAMETER;
    if (key) {
        error = ::RegQueryValueExA(key, valueName, nullptr, nullptr, nullptr, &size);
    }
    if (error == ERROR_SUCCESS) {
        // One byte more than the data, for the end of data that has none.
        Alloc(size);
        Resize(size + 1);
        size = BufLen;
        error = ::RegQueryValueExA(key, valueName, nullptr, nullptr, reinterpret_cast<BYTE*>(Buffer), &size);
    }
    if (error == ERROR_SUCCESS) {
        EndData(size);
        TakeLengths();
    } else {
        Copy("", 0);
    }
    return *this;
}
