#include "display/sdl/mouse.h"

#include <windows.h>

#include <algorithm>
#include <iterator>

namespace platform::display {
namespace {

constexpr int kButtons[] = {SDL_BUTTON_LEFT, SDL_BUTTON_RIGHT, SDL_BUTTON_MIDDLE};

}  // namespace

void Mouse::Button(int button, bool down, SDL_Point place) {
    const auto* found = std::find(std::begin(kButtons), std::end(kButtons), button);
    if (found == std::end(kButtons)) {
        return;
    }
    const unsigned bit = SDL_BUTTON(button);
    if (down == ((held & bit) != 0)) {
        return;  // released for it when the focus went away, or pressed while another window had it
    }
    held ^= bit;
    Move(place);
    sink.mouseButton(static_cast<int>(found - std::begin(kButtons)), down);
}

void Mouse::Move(SDL_Point place) {
    sink.mouseMove(place.x, place.y);
}

void Mouse::Wheel(int notches) {
    if (notches != 0) {
        sink.mouseWheel(notches * WHEEL_DELTA);
    }
}

void Mouse::Release(unsigned still) {
    for (int number = 0; number < static_cast<int>(std::size(kButtons)); ++number) {
        const unsigned bit = SDL_BUTTON(kButtons[number]);
        if ((held & bit & ~still) != 0) {
            held &= ~bit;
            sink.mouseButton(number, false);
        }
    }
}

}  // namespace platform::display
