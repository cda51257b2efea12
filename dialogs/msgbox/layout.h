// How a message box is laid out around its message. Arithmetic only, in pixels.
#pragma once

#include <windows.h>

namespace msgbox {

/// What the template gives, and the measured message. Rectangles are in dialog coordinates.
struct Measured {
    RECT message;      ///< of the message control; its width is where words are wrapped
    SIZE text;         ///< that the message needs
    int iconLeft;      ///< of the icon control
    int iconHeight;    ///< 0 without an icon
    SIZE panel;        ///< of the panel control
    RECT button;       ///< the first pattern button; its top is also the margin
    int secondButton;  ///< top of the second pattern button
    int buttonCount;
    SIZE window;       ///< of the whole dialog
    int clientHeight;  ///< of its client area
};

struct Layout {
    RECT message;
    SIZE panel;
    RECT button;  ///< the first button
    int step;     ///< from one button's top to the next one's
    SIZE window;
};

Layout LayOut(Measured const& measured);

}  // namespace msgbox
