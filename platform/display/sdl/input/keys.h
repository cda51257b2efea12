/// @file keys.h
/// From the host's keys to Windows virtual keys.
#pragma once

#include <SDL.h>

namespace platform::display {

struct Key {
    unsigned virtualKey;  ///< 0: a key that Windows has no code for
    unsigned scanCode;    ///< set 1, without the 0xE0 prefix
    bool extended;
};

/// Letters follow the host's layout, all other keys their place on the keyboard. With Num Lock off the number pad
/// moves.
Key TranslateKey(const SDL_Keysym& key, bool numLock);

}  // namespace platform::display
