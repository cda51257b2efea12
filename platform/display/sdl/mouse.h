/// @file mouse.h
/// Hands presses and releases on, and remembers what is held.
#pragma once

#include "display/display.h"

#include <SDL.h>

namespace platform::display {

class Mouse {
  public:
    explicit Mouse(const Sink& sink) : sink(sink) {}

    /// A button of SDL's went down or up at a place of the screen; buttons that the layer does not know are left out.
    void Button(int button, bool down, SDL_Point place);
    void Move(SDL_Point place);
    /// @param notches positive away from the user.
    void Wheel(int notches);

    /// Whatever is held goes up but for those of `still` (SDL_BUTTON_LMASK ...): what happens elsewhere is not seen.
    void Release(unsigned still = 0);

    bool AnyHeld() const {
        return held != 0;
    }

  private:
    const Sink& sink;
    unsigned held = 0;
};

}  // namespace platform::display
