#include "display/sdl/input/keyboard.h"

#include <windows.h>

namespace platform::display {
namespace {

// Takes one character off UTF-8 text, which SDL always gives well-formed; 0 at its end.
unsigned NextCharacter(const char*& text) {
    const auto lead = static_cast<unsigned char>(*text);
    if (lead == 0) {
        return 0;
    }
    ++text;
    if (lead < 0x80) {
        return lead;
    }
    unsigned value = lead & (lead >= 0xF0 ? 0x07 : lead >= 0xE0 ? 0x0F : 0x1F);
    for (; (static_cast<unsigned char>(*text) & 0xC0) == 0x80; ++text) {
        value = value << 6 | (static_cast<unsigned char>(*text) & 0x3F);
    }
    return value;
}

// A character that the third level of a layout gives: right Alt is AltGr there, which Windows sees as Ctrl and Alt.
bool IsThirdLevel(unsigned character, SDL_Keycode plain) {
    const bool upper = character >= 'A' && character <= 'Z';
    return character != 0 && (upper ? character - 'A' + 'a' : character) != static_cast<unsigned>(plain);
}

}  // namespace

void Keyboard::Down(const SDL_Keysym& key, const char* text) {
    const Key translated = IsHeld(key.scancode) ? held[key.scancode] : TranslateKey(key, (key.mod & KMOD_NUM) != 0);
    if (translated.virtualKey == 0) {
        if (text != nullptr) {
            Text(text);
        }
        return;
    }
    held[key.scancode] = translated;
    const bool control = IsHeld(SDL_SCANCODE_LCTRL) || IsHeld(SDL_SCANCODE_RCTRL);
    unsigned character = text != nullptr ? NextCharacter(text) : 0;
    const bool third = !control && IsHeld(SDL_SCANCODE_RALT) && IsThirdLevel(character, key.sym);
    if (control) {
        character = 0;  // X keeps the plain character beside a held Ctrl
    }
    if (third) {
        sink.key(VK_LCONTROL, 0x1D, false, true, 0);
    }
    sink.key(translated.virtualKey, translated.scanCode, translated.extended, true, character);
    if (third) {
        sink.key(VK_LCONTROL, 0x1D, false, false, 0);
    }
    if (text != nullptr && !control) {
        Text(text);
    }
}

void Keyboard::Up(const SDL_Keysym& key) {
    if (IsHeld(key.scancode)) {
        Release(key.scancode);
    }
}

void Keyboard::Text(const char* text) {
    while (const unsigned character = NextCharacter(text)) {
        sink.key(VK_PACKET, 0, false, true, character);
        sink.key(VK_PACKET, 0, false, false, 0);
    }
}

void Keyboard::ReleaseAll() {
    for (int host = 0; host < SDL_NUM_SCANCODES; ++host) {
        if (IsHeld(static_cast<SDL_Scancode>(host))) {
            Release(static_cast<SDL_Scancode>(host));
        }
    }
}

void Keyboard::Release(SDL_Scancode host) {
    const Key key = held[host];
    held[host] = {};
    sink.key(key.virtualKey, key.scanCode, key.extended, false, 0);
}

}  // namespace platform::display
