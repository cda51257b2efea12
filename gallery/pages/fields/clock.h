/// @file clock.h
/// The clock of the user's international settings.
#pragma once

#include <windows.h>

namespace gallery {

struct Clock {
    bool is24Hour = false;
    bool leadingZero = false;

    /// The settings as they are.
    static Clock Current();

    /// Makes them the user's settings, with the time separator in use, and tells all top-level windows.
    /// @returns whether they could be written.
    bool Apply() const;
};

}  // namespace gallery
