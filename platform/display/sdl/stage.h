/// @file stage.h
/// How the screen stands on the host's desktop: as one window, or pane by pane.
#pragma once

#include "display/display.h"

#include <SDL.h>

namespace platform::display {

/// Used on the display's thread alone.
class Stage {
  public:
    static constexpr int kNever = -1;

    virtual ~Stage() = default;

    /// @returns false, with SDL's error, when the host does not let it.
    virtual bool Open() = 0;

    /// Events of windows and of the mouse.
    virtual void Handle(const SDL_Event& event) = 0;

    /// All that has come in one go was handled.
    virtual void Settle() {}

    /// Shows what has changed. @returns false when that cannot be done now.
    virtual bool Present() = 0;

    /// @returns whether it has to be presented although nothing has woken the display.
    virtual bool Stale() const = 0;

    /// @returns in how many milliseconds Settle is to be called if nothing happens.
    virtual int Patience() const {
        return kNever;
    }

    virtual bool FirstRoom(Room*) const {
        return false;
    }
};

}  // namespace platform::display
