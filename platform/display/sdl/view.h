/// @file view.h
/// The picture in a window: the parts that have changed go from the screen's memory into the window's.
#pragma once

#include "display/display.h"
#include "display/sdl/scaling.h"

#include <SDL.h>

namespace platform::display {

/// Used on one thread.
class View {
  public:
    View(const Source& source, int width, int height) : source(source), width(width), height(height) {}
    ~View() {
        SDL_FreeSurface(scaled);
    }
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    /// Takes the window that it draws in. @returns whether it can be drawn in.
    bool Attach(SDL_Window* target);

    /// Shows what has changed, or all of it. @returns false when it cannot, and has to be asked for all of it again.
    bool Present(bool whole);

    /// @returns a place of the window in the picture, inside it or not.
    SDL_Point ToPicture(int x, int y) const;

  private:
    bool Draw(const Picture& picture, SDL_Surface* shown, const Placement& placement, const Box& part);

    const Source& source;
    const int width;
    const int height;
    SDL_Window* window = nullptr;
    std::vector<Box> dirty;
    SDL_Surface* scaled = nullptr;  // as large as the window, where that is not as large as the picture
};

}  // namespace platform::display
