#include "kernel/text/encoding.h"

#include <windows.h>

#include <algorithm>

namespace platform::kernel {
namespace {

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::u16string Widen(UINT codePage, std::string_view text) {
    std::u16string wide(text.size(), u'\0');
    wide.resize(static_cast<std::size_t>(MultiByteToWideChar(codePage, 0, text.data(), static_cast<int>(text.size()),
                                                             wide.data(), static_cast<int>(wide.size()))));
    return wide;
}

std::string Narrow(UINT codePage, std::u16string_view wide) {
    if (wide.empty()) {
        return {};
    }
    std::string text(wide.size() * 3, '\0');
    text.resize(
        static_cast<std::size_t>(WideCharToMultiByte(codePage, 0, wide.data(), static_cast<int>(wide.size()),
                                                     text.data(), static_cast<int>(text.size()), nullptr, nullptr)));
    return text;
}

}  // namespace

std::string AnsiFromWide(std::u16string_view text) {
    return Narrow(CP_ACP, text);
}

std::string AnsiFromUtf8(std::string_view text) {
    return IsAscii(text) ? std::string(text) : Narrow(CP_ACP, Widen(CP_UTF8, text));
}

std::string Utf8FromAnsi(std::string_view text) {
    return IsAscii(text) ? std::string(text) : Narrow(CP_UTF8, Widen(CP_ACP, text));
}

std::string Upper(std::string text) {
    CharUpperBuffA(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

}  // namespace platform::kernel
