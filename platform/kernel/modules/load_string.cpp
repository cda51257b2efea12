// Strings of a module. They come in blocks of 16, each string a count of UTF-16 units and the units.
#include <windows.h>

#include <algorithm>
#include <cstring>
#include <new>
#include <string>

#include "kernel/guarded.h"
#include "kernel/text/codepage.h"
#include "kernel/text/encoding.h"
#include "kernel/modules/resource.h"

using namespace platform::kernel;

namespace {

/// @returns the string's place in its block, empty when there is none or when the block lies about its lengths.
Bytes FindString(HMODULE module, UINT id) {
    Bytes block = FindResourceBytes(module, MAKEINTRESOURCEA(id / 16 + 1), RT_STRING);
    for (UINT skip = id % 16;; --skip) {
        WORD units = 0;
        if (block.size() < sizeof units) {
            return {};
        }
        std::memcpy(&units, block.data(), sizeof units);
        block = block.subspan(sizeof units);
        const std::size_t size = std::size_t{units} * sizeof(WCHAR);
        if (block.size() < size) {
            return {};
        }
        if (skip == 0) {
            return block.first(size);
        }
        block = block.subspan(size);
    }
}

// How many bytes of a text fit without half a character at the end.
std::size_t WholeCharacters(const std::string& text, std::size_t most) {
    const CodePage& page = ActiveCodePage();
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t width = page.lead[static_cast<unsigned char>(text[at])] && at + 1 < text.size() ? 2 : 1;
        if (at + width > most) {
            break;
        }
        at += width;
    }
    return at;
}

}  // namespace

int WINAPI LoadStringA(HINSTANCE module, UINT id, LPSTR buffer, int size) {
    if (!buffer || size <= 0) {
        return 0;
    }
    buffer[0] = '\0';
    return Guarded(0, [&] {
        const Bytes found = FindString(module, id & 0xFFFF);
        std::u16string wide(found.size() / sizeof(WCHAR), u'\0');
        if (wide.empty()) {
            return 0;
        }
        std::memcpy(wide.data(), found.data(), found.size());
        const std::string text = AnsiFromWide(wide);
        const std::size_t copied = WholeCharacters(text, static_cast<std::size_t>(size) - 1);
        std::memcpy(buffer, text.data(), copied);
        buffer[copied] = '\0';
        return static_cast<int>(copied);
    });
}
