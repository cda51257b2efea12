#include "display/sdl/input/keys.h"

#include <windows.h>

#include <array>
#include <iterator>

namespace platform::display {
namespace {

struct Entry {
    SDL_Scancode host;
    Key key;
};

constexpr Entry kEntries[] = {
    {SDL_SCANCODE_RETURN, {VK_RETURN, 0x1C, false}},
    {SDL_SCANCODE_ESCAPE, {VK_ESCAPE, 0x01, false}},
    {SDL_SCANCODE_BACKSPACE, {VK_BACK, 0x0E, false}},
    {SDL_SCANCODE_TAB, {VK_TAB, 0x0F, false}},
    {SDL_SCANCODE_SPACE, {VK_SPACE, 0x39, false}},
    {SDL_SCANCODE_CAPSLOCK, {VK_CAPITAL, 0x3A, false}},

    {SDL_SCANCODE_MINUS, {VK_OEM_MINUS, 0x0C, false}},
    {SDL_SCANCODE_EQUALS, {VK_OEM_PLUS, 0x0D, false}},
    {SDL_SCANCODE_LEFTBRACKET, {VK_OEM_4, 0x1A, false}},
    {SDL_SCANCODE_RIGHTBRACKET, {VK_OEM_6, 0x1B, false}},
    {SDL_SCANCODE_BACKSLASH, {VK_OEM_5, 0x2B, false}},
    {SDL_SCANCODE_NONUSHASH, {VK_OEM_5, 0x2B, false}},
    {SDL_SCANCODE_SEMICOLON, {VK_OEM_1, 0x27, false}},
    {SDL_SCANCODE_APOSTROPHE, {VK_OEM_7, 0x28, false}},
    {SDL_SCANCODE_GRAVE, {VK_OEM_3, 0x29, false}},
    {SDL_SCANCODE_COMMA, {VK_OEM_COMMA, 0x33, false}},
    {SDL_SCANCODE_PERIOD, {VK_OEM_PERIOD, 0x34, false}},
    {SDL_SCANCODE_SLASH, {VK_OEM_2, 0x35, false}},
    {SDL_SCANCODE_NONUSBACKSLASH, {VK_OEM_102, 0x56, false}},

    {SDL_SCANCODE_F11, {VK_F11, 0x57, false}},
    {SDL_SCANCODE_F12, {VK_F12, 0x58, false}},

    {SDL_SCANCODE_PRINTSCREEN, {VK_SNAPSHOT, 0x37, true}},
    {SDL_SCANCODE_SCROLLLOCK, {VK_SCROLL, 0x46, false}},
    {SDL_SCANCODE_PAUSE, {VK_PAUSE, 0x45, false}},
    {SDL_SCANCODE_INSERT, {VK_INSERT, 0x52, true}},
    {SDL_SCANCODE_HOME, {VK_HOME, 0x47, true}},
    {SDL_SCANCODE_PAGEUP, {VK_PRIOR, 0x49, true}},
    {SDL_SCANCODE_DELETE, {VK_DELETE, 0x53, true}},
    {SDL_SCANCODE_END, {VK_END, 0x4F, true}},
    {SDL_SCANCODE_PAGEDOWN, {VK_NEXT, 0x51, true}},
    {SDL_SCANCODE_RIGHT, {VK_RIGHT, 0x4D, true}},
    {SDL_SCANCODE_LEFT, {VK_LEFT, 0x4B, true}},
    {SDL_SCANCODE_DOWN, {VK_DOWN, 0x50, true}},
    {SDL_SCANCODE_UP, {VK_UP, 0x48, true}},

    {SDL_SCANCODE_NUMLOCKCLEAR, {VK_NUMLOCK, 0x45, true}},
    {SDL_SCANCODE_KP_DIVIDE, {VK_DIVIDE, 0x35, true}},
    {SDL_SCANCODE_KP_MULTIPLY, {VK_MULTIPLY, 0x37, false}},
    {SDL_SCANCODE_KP_MINUS, {VK_SUBTRACT, 0x4A, false}},
    {SDL_SCANCODE_KP_PLUS, {VK_ADD, 0x4E, false}},
    {SDL_SCANCODE_KP_ENTER, {VK_RETURN, 0x1C, true}},
    {SDL_SCANCODE_KP_0, {VK_NUMPAD0, 0x52, false}},
    {SDL_SCANCODE_KP_1, {VK_NUMPAD1, 0x4F, false}},
    {SDL_SCANCODE_KP_2, {VK_NUMPAD2, 0x50, false}},
    {SDL_SCANCODE_KP_3, {VK_NUMPAD3, 0x51, false}},
    {SDL_SCANCODE_KP_4, {VK_NUMPAD4, 0x4B, false}},
    {SDL_SCANCODE_KP_5, {VK_NUMPAD5, 0x4C, false}},
    {SDL_SCANCODE_KP_6, {VK_NUMPAD6, 0x4D, false}},
    {SDL_SCANCODE_KP_7, {VK_NUMPAD7, 0x47, false}},
    {SDL_SCANCODE_KP_8, {VK_NUMPAD8, 0x48, false}},
    {SDL_SCANCODE_KP_9, {VK_NUMPAD9, 0x49, false}},
    {SDL_SCANCODE_KP_PERIOD, {VK_DECIMAL, 0x53, false}},

    {SDL_SCANCODE_APPLICATION, {VK_APPS, 0x5D, true}},
    {SDL_SCANCODE_MENU, {VK_APPS, 0x5D, true}},
    {SDL_SCANCODE_LCTRL, {VK_LCONTROL, 0x1D, false}},
    {SDL_SCANCODE_LSHIFT, {VK_LSHIFT, 0x2A, false}},
    {SDL_SCANCODE_LALT, {VK_LMENU, 0x38, false}},
    {SDL_SCANCODE_LGUI, {VK_LWIN, 0x5B, true}},
    {SDL_SCANCODE_RCTRL, {VK_RCONTROL, 0x1D, true}},
    {SDL_SCANCODE_RSHIFT, {VK_RSHIFT, 0x36, false}},
    {SDL_SCANCODE_RALT, {VK_RMENU, 0x38, true}},
    {SDL_SCANCODE_RGUI, {VK_RWIN, 0x5C, true}},
};

using Table = std::array<Key, SDL_NUM_SCANCODES>;

// By the host's numbers: A to Z, 1 to 0.
constexpr unsigned kLetterCodes[] = {0x1E, 0x30, 0x2E, 0x20, 0x12, 0x21, 0x22, 0x23, 0x17, 0x24, 0x25, 0x26, 0x32,
                                     0x31, 0x18, 0x19, 0x10, 0x13, 0x1F, 0x14, 0x16, 0x2F, 0x11, 0x2D, 0x15, 0x2C};

constexpr Table MakeTable() {
    Table table{};
    for (unsigned i = 0; i < std::size(kLetterCodes); ++i) {
        table[SDL_SCANCODE_A + i] = {'A' + i, kLetterCodes[i], false};
    }
    for (unsigned i = 0; i < 10; ++i) {
        table[SDL_SCANCODE_1 + i] = {'0' + (i + 1) % 10, 0x02 + i, false};
        table[SDL_SCANCODE_F1 + i] = {VK_F1 + i, 0x3B + i, false};
    }
    for (const Entry& entry : kEntries) {
        table[entry.host] = entry.key;
    }
    return table;
}

constexpr Table kTable = MakeTable();

// The keys that the number pad's digits and its point stand for while Num Lock is off; 0 for all others.
unsigned PadMovement(SDL_Scancode host) {
    constexpr unsigned kFromOne[] = {VK_END,  VK_DOWN, VK_NEXT,  VK_LEFT,   VK_CLEAR, VK_RIGHT,
                                     VK_HOME, VK_UP,   VK_PRIOR, VK_INSERT, VK_DELETE};
    return host >= SDL_SCANCODE_KP_1 && host <= SDL_SCANCODE_KP_PERIOD ? kFromOne[host - SDL_SCANCODE_KP_1] : 0;
}

}  // namespace

Key TranslateKey(const SDL_Keysym& key, bool numLock) {
    if (key.scancode < 0 || key.scancode >= SDL_NUM_SCANCODES) {
        return {};
    }
    Key result = kTable[key.scancode];
    if (key.sym >= SDLK_a && key.sym <= SDLK_z) {
        result.virtualKey = static_cast<unsigned>(key.sym - SDLK_a + 'A');
    } else if (!numLock) {
        if (const unsigned movement = PadMovement(key.scancode)) {
            result.virtualKey = movement;
        }
    }
    return result;
}

}  // namespace platform::display
