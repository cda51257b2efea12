// The US keyboard: scan codes of set 1 and virtual keys.
#include <iterator>

#include "user/input/input.h"

namespace platform::user {
namespace {

struct ScanKey {
    BYTE key;
    BYTE sideKey;  ///< the left or right key, for modifiers
};

// Indexed by scan code.
constexpr ScanKey kPlain[] = {{0, 0},
                              {VK_ESCAPE, 0},
                              {'1', 0},
                              {'2', 0},
                              {'3', 0},
                              {'4', 0},
                              {'5', 0},
                              {'6', 0},
                              {'7', 0},
                              {'8', 0},
                              {'9', 0},
                              {'0', 0},
                              {VK_OEM_MINUS, 0},
                              {VK_OEM_PLUS, 0},
                              {VK_BACK, 0},
                              {VK_TAB, 0},
                              {'Q', 0},
                              {'W', 0},
                              {'E', 0},
                              {'R', 0},
                              {'T', 0},
                              {'Y', 0},
                              {'U', 0},
                              {'I', 0},
                              {'O', 0},
                              {'P', 0},
                              {VK_OEM_4, 0},
                              {VK_OEM_6, 0},
                              {VK_RETURN, 0},
                              {VK_CONTROL, VK_LCONTROL},
                              {'A', 0},
                              {'S', 0},
                              {'D', 0},
                              {'F', 0},
                              {'G', 0},
                              {'H', 0},
                              {'J', 0},
                              {'K', 0},
                              {'L', 0},
                              {VK_OEM_1, 0},
                              {VK_OEM_7, 0},
                              {VK_OEM_3, 0},
                              {VK_SHIFT, VK_LSHIFT},
                              {VK_OEM_5, 0},
                              {'Z', 0},
                              {'X', 0},
                              {'C', 0},
                              {'V', 0},
                              {'B', 0},
                              {'N', 0},
                              {'M', 0},
                              {VK_OEM_COMMA, 0},
                              {VK_OEM_PERIOD, 0},
                              {VK_OEM_2, 0},
                              {VK_SHIFT, VK_RSHIFT},
                              {VK_MULTIPLY, 0},
                              {VK_MENU, VK_LMENU},
                              {VK_SPACE, 0},
                              {VK_CAPITAL, 0},
                              {VK_F1, 0},
                              {VK_F2, 0},
                              {VK_F3, 0},
                              {VK_F4, 0},
                              {VK_F5, 0},
                              {VK_F6, 0},
                              {VK_F7, 0},
                              {VK_F8, 0},
                              {VK_F9, 0},
                              {VK_F10, 0},
                              {VK_NUMLOCK, 0},
                              {VK_SCROLL, 0},
                              {VK_HOME, 0},
                              {VK_UP, 0},
                              {VK_PRIOR, 0},
                              {VK_SUBTRACT, 0},
                              {VK_LEFT, 0},
                              {VK_CLEAR, 0},
                              {VK_RIGHT, 0},
                              {VK_ADD, 0},
                              {VK_END, 0},
                              {VK_DOWN, 0},
                              {VK_NEXT, 0},
                              {VK_INSERT, 0},
                              {VK_DELETE, 0},
                              {VK_SNAPSHOT, 0},
                              {0, 0},
                              {VK_OEM_102, 0},
                              {VK_F11, 0},
                              {VK_F12, 0}};
static_assert(std::size(kPlain) == 0x59);

struct ExtendedKey {
    BYTE scan;
    ScanKey is;
};

constexpr ExtendedKey kExtended[] = {{0x1C, {VK_RETURN, 0}},      {0x1D, {VK_CONTROL, VK_RCONTROL}},
                                     {0x35, {VK_DIVIDE, 0}},      {0x37, {VK_SNAPSHOT, 0}},
                                     {0x38, {VK_MENU, VK_RMENU}}, {0x45, {VK_NUMLOCK, 0}},
                                     {0x46, {VK_CANCEL, 0}},      {0x47, {VK_HOME, 0}},
                                     {0x48, {VK_UP, 0}},          {0x49, {VK_PRIOR, 0}},
                                     {0x4B, {VK_LEFT, 0}},        {0x4D, {VK_RIGHT, 0}},
                                     {0x4F, {VK_END, 0}},         {0x50, {VK_DOWN, 0}},
                                     {0x51, {VK_NEXT, 0}},        {0x52, {VK_INSERT, 0}},
                                     {0x53, {VK_DELETE, 0}},      {0x5B, {VK_LWIN, 0}},
                                     {0x5C, {VK_RWIN, 0}},        {0x5D, {VK_APPS, 0}}};

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
