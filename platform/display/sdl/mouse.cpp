#include "display/sdl/mouse.h"

#include <windows.h>

#include <algorithm>
#include <iterator>

namespace platform::display {

void Mouse::Button(int button, bool down, SDL_Point place) {
    static constexpr int kButtons[] = {SDL_BUTTON_LEFT, SDL_BUTTON_RIGHT, SDL_BUTTON_MIDDLE};
    const auto* found = std::find(std::begin(kButtons), std::end(kButtons), button);
    if (found == std::end(kButtons)) {
        return;
    }
    const int number = static_cast<int>(found - std::begin(kButtons));
    const unsigned bit = 1U << number;
    if (down == ((held & bit) != 0)) {
        return;  // released for it when the focus went away, or pressed while another window had it
    }
    held ^= bit;
    Move(place);
    sink.mouseButton(number, down);
}

void Mouse::Move(SDL_Point place) {
    sink.mouseMove(place.x, place.y);
}

void Mouse::Wheel(int notches) {
    if (notches != 0) {
        sink.mouseWheel(notches * WHEEL_DELTA);
    }
}

void Mouse::ReleaseAll() {
    for (int button = 0; held != 0; ++button) {
        const unsigned bit = 1U << button;
        if ((held & bit) != 0) {
            held &= ~bit;
            sink.mouseButton(button, false);
        }
    }
}

}  // namespace platform::display
