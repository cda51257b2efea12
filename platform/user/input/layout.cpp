// The US keyboard: scan codes of set 1, virtual keys and key names.
#include <algorithm>
#include <cstring>
#include <iterator>

#include "user/input/input.h"

namespace platform::user {
namespace {

struct ScanKey {
    BYTE key;
    BYTE sideKey;  ///< the left or right key, for modifiers
    const char* name;
};

// Indexed by scan code.
constexpr ScanKey kPlain[] = {
    {0, 0, ""},
    {VK_ESCAPE, 0, "Esc"},
    {'1', 0, "1"},
    {'2', 0, "2"},
    {'3', 0, "3"},
    {'4', 0, "4"},
    {'5', 0, "5"},
    {'6', 0, "6"},
    {'7', 0, "7"},
    {'8', 0, "8"},
    {'9', 0, "9"},
    {'0', 0, "0"},
    {VK_OEM_MINUS, 0, "-"},
    {VK_OEM_PLUS, 0, "="},
    {VK_BACK, 0, "Backspace"},
    {VK_TAB, 0, "Tab"},
    {'Q', 0, "Q"},
    {'W', 0, "W"},
    {'E', 0, "E"},
    {'R', 0, "R"},
    {'T', 0, "T"},
    {'Y', 0, "Y"},
    {'U', 0, "U"},
    {'I', 0, "I"},
    {'O', 0, "O"},
    {'P', 0, "P"},
    {VK_OEM_4, 0, "["},
    {VK_OEM_6, 0, "]"},
    {VK_RETURN, 0, "Enter"},
    {VK_CONTROL, VK_LCONTROL, "Ctrl"},
    {'A', 0, "A"},
    {'S', 0, "S"},
    {'D', 0, "D"},
    {'F', 0, "F"},
    {'G', 0, "G"},
    {'H', 0, "H"},
    {'J', 0, "J"},
    {'K', 0, "K"},
    {'L', 0, "L"},
    {VK_OEM_1, 0, ";"},
    {VK_OEM_7, 0, "'"},
    {VK_OEM_3, 0, "`"},
    {VK_SHIFT, VK_LSHIFT, "Shift"},
    {VK_OEM_5, 0, "\\"},
    {'Z', 0, "Z"},
    {'X', 0, "X"},
    {'C', 0, "C"},
    {'V', 0, "V"},
    {'B', 0, "B"},
    {'N', 0, "N"},
    {'M', 0, "M"},
    {VK_OEM_COMMA, 0, ","},
    {VK_OEM_PERIOD, 0, "."},
    {VK_OEM_2, 0, "/"},
    {VK_SHIFT, VK_RSHIFT, "Right Shift"},
    {VK_MULTIPLY, 0, "Num *"},
    {VK_MENU, VK_LMENU, "Alt"},
    {VK_SPACE, 0, "Space"},
    {VK_CAPITAL, 0, "Caps Lock"},
    {VK_F1, 0, "F1"},
    {VK_F2, 0, "F2"},
    {VK_F3, 0, "F3"},
    {VK_F4, 0, "F4"},
    {VK_F5, 0, "F5"},
    {VK_F6, 0, "F6"},
    {VK_F7, 0, "F7"},
    {VK_F8, 0, "F8"},
    {VK_F9, 0, "F9"},
    {VK_F10, 0, "F10"},
    {VK_NUMLOCK, 0, "Pause"},
    {VK_SCROLL, 0, "Scroll Lock"},
    {VK_HOME, 0, "Num 7"},
    {VK_UP, 0, "Num 8"},
    {VK_PRIOR, 0, "Num 9"},
    {VK_SUBTRACT, 0, "Num -"},
    {VK_LEFT, 0, "Num 4"},
    {VK_CLEAR, 0, "Num 5"},
    {VK_RIGHT, 0, "Num 6"},
    {VK_ADD, 0, "Num +"},
    {VK_END, 0, "Num 1"},
    {VK_DOWN, 0, "Num 2"},
    {VK_NEXT, 0, "Num 3"},
    {VK_INSERT, 0, "Num 0"},
    {VK_DELETE, 0, "Num Del"},
    {VK_SNAPSHOT, 0, "Sys Req"},
    {0, 0, ""},
    {VK_OEM_102, 0, "\\"},
    {VK_F11, 0, "F11"},
    {VK_F12, 0, "F12"},
};
static_assert(std::size(kPlain) == 0x59);

struct ExtendedKey {
    BYTE scan;
    ScanKey is;
};

constexpr ExtendedKey kExtended[] = {
    {0x1C, {VK_RETURN, 0, "Num Enter"}},
    {0x1D, {VK_CONTROL, VK_RCONTROL, "Right Ctrl"}},
    {0x35, {VK_DIVIDE, 0, "Num /"}},
    {0x37, {VK_SNAPSHOT, 0, "Prnt Scrn"}},
    {0x38, {VK_MENU, VK_RMENU, "Right Alt"}},
    {0x45, {VK_NUMLOCK, 0, "Num Lock"}},
    {0x46, {VK_CANCEL, 0, "Break"}},
    {0x47, {VK_HOME, 0, "Home"}},
    {0x48, {VK_UP, 0, "Up"}},
    {0x49, {VK_PRIOR, 0, "Page Up"}},
    {0x4B, {VK_LEFT, 0, "Left"}},
    {0x4D, {VK_RIGHT, 0, "Right"}},
    {0x4F, {VK_END, 0, "End"}},
    {0x50, {VK_DOWN, 0, "Down"}},
    {0x51, {VK_NEXT, 0, "Page Down"}},
    {0x52, {VK_INSERT, 0, "Insert"}},
    {0x53, {VK_DELETE, 0, "Delete"}},
    {0x5B, {VK_LWIN, 0, "Left Windows"}},
    {0x5C, {VK_RWIN, 0, "Right Windows"}},
    {0x5D, {VK_APPS, 0, "Application"}},
};

const ScanKey* FindScan(UINT scan, bool extended) {
    if (!extended) {
        return scan < std::size(kPlain) ? &kPlain[scan] : nullptr;
    }
    for (const ExtendedKey& each : kExtended) {
        if (each.scan == scan) {
            return &each.is;
        }
    }
    return nullptr;
}

// What numbers of the keypad share with its arrows.
constexpr struct {
    BYTE key;
    BYTE scan;
} kKeypad[] = {
    {VK_NUMPAD7, 0x47}, {VK_NUMPAD8, 0x48}, {VK_NUMPAD9, 0x49}, {VK_NUMPAD4, 0x4B},
    {VK_NUMPAD5, 0x4C}, {VK_NUMPAD6, 0x4D}, {VK_NUMPAD1, 0x4F}, {VK_NUMPAD2, 0x50},
    {VK_NUMPAD3, 0x51}, {VK_NUMPAD0, 0x52}, {VK_DECIMAL, 0x53},
};

}  // namespace

UINT KeyOfScan(UINT scan, bool extended, bool sides) {
    const ScanKey* key = FindScan(scan, extended);
    if (key == nullptr) {
        return 0;
    }
    return sides && key->sideKey != 0 ? key->sideKey : key->key;
}

UINT ScanOfKey(UINT key) {
    for (const auto& each : kKeypad) {
        if (each.key == key) {
            return each.scan;
        }
    }
    for (UINT scan = 1; scan < std::size(kPlain) && key != 0; ++scan) {
        if (kPlain[scan].key == key || kPlain[scan].sideKey == key) {
            return scan;
        }
    }
    for (const ExtendedKey& each : kExtended) {
        if (key != 0 && (each.is.key == key || each.is.sideKey == key)) {
            return each.scan;
        }
    }
    return 0;
}

UINT KeypadNumber(UINT scan) {
    for (const auto& each : kKeypad) {
        if (each.scan == scan) {
            return each.key;
        }
    }
    return 0;
}

}  // namespace platform::user

using namespace platform::user;

UINT WINAPI MapVirtualKeyA(UINT code, UINT mapType) {
    switch (mapType) {
        case MAPVK_VK_TO_VSC:
            return ScanOfKey(code);
        case MAPVK_VSC_TO_VK:
        case MAPVK_VSC_TO_VK_EX:
            return KeyOfScan(code & 0xFF, (code & 0xFF00) == 0xE000, mapType == MAPVK_VSC_TO_VK_EX);
        case MAPVK_VK_TO_CHAR: {
            if (code >= 'A' && code <= 'Z') {
                return code;
            }
            const int character = CharacterOf(code, false, false, false, false);
            return character < 0 ? 0 : static_cast<UINT>(character);
        }
        default:
            return 0;
    }
}

int WINAPI GetKeyNameTextA(LONG keyData, LPSTR text, int size) {
    UINT scan = static_cast<UINT>(keyData >> 16) & 0xFF;
    const bool extended = (keyData & 0x01000000) != 0;
    // Callers who do not care for the side get the plain name.
    if ((keyData & 0x02000000) != 0 && scan == ScanOfKey(VK_RSHIFT)) {
        scan = ScanOfKey(VK_LSHIFT);
    }
    const bool plain = (keyData & 0x02000000) != 0 && (scan == 0x1D || scan == 0x38);
    const ScanKey* key = FindScan(scan, extended && !plain);
    if (key == nullptr || *key->name == '\0' || text == nullptr || size <= 0) {
        if (text != nullptr && size > 0) {
            *text = '\0';
        }
        return 0;
    }
    const int length = std::min(static_cast<int>(std::strlen(key->name)), size - 1);
    std::memcpy(text, key->name, static_cast<std::size_t>(length));
    text[length] = '\0';
    return length;
}
