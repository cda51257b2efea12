/// @file keyboard.h
/// Turns the host's key and text events into presses and releases, and remembers what is held.
#pragma once

#include "display/display.h"
#include "display/sdl/input/keys.h"

#include <array>

namespace platform::display {

class Keyboard {
  public:
    explicit Keyboard(const Sink& sink) : sink(sink) {}

    /// @param text UTF-8 that this press makes under the host's layout, or null.
    void Down(const SDL_Keysym& key, const char* text);
    void Up(const SDL_Keysym& key);

    /// Characters that no key press stands behind: an input method, a compose sequence.
    void Text(const char* text);

    /// Nothing that happens elsewhere is seen: whatever is held goes up.
    void ReleaseAll();

  private:
    void Release(SDL_Scancode host);
    bool IsHeld(SDL_Scancode host) const {
        return held[host].virtualKey != 0;
    }

    const Sink& sink;
    std::array<Key, SDL_NUM_SCANCODES> held{};  // what each key went down as, so that it comes up as the same
};

}  // namespace platform::display
