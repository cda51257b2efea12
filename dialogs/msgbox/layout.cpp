#include "dialogs/msgbox/layout.h"

#include <algorithm>

namespace msgbox {

namespace {

/// Rounds towards minus infinity.
int Half(int value) {
    return value >> 1;
}

POINT PlaceMessage(Measured const& in, int wrapWidth, int extraWidth) {
    POINT place = {in.message.left, in.message.top};
    if (extraWidth == 0) {
        place.x += Half(wrapWidth - in.text.cx);
    }
    if (in.text.cy < in.iconHeight) {
        place.y += Half(in.iconHeight - in.text.cy);
    } else if (in.iconHeight == 0) {
        place.x -= Half(in.message.left - in.iconLeft);
    }
    return place;
}

}  // namespace

Layout LayOut(Measured const& in) {
    int const wrapWidth = in.message.right - in.message.left;
    int const extraWidth = std::max<int>(0, in.text.cx - wrapWidth);
    int const buttonHeight = in.button.bottom - in.button.top;
    int const margin = in.button.top;

    Layout out = {};
    POINT const place = PlaceMessage(in, wrapWidth, extraWidth);
    out.message = {place.x, place.y, place.x + in.text.cx, place.y + in.text.cy};
    out.panel.cx = in.panel.cx + extraWidth;
    out.panel.cy = std::max<int>(in.message.bottom + in.text.cy, in.panel.cy + in.iconHeight);
    out.button = in.button;
    OffsetRect(&out.button, extraWidth, 0);
    out.step = in.secondButton - in.button.top;

    int const lastButton = in.button.top + (in.buttonCount - 1) * out.step;
    int const content = std::max<int>(lastButton + buttonHeight + margin, out.panel.cy + 2 * margin);
    out.window.cx = in.window.cx + extraWidth;
    out.window.cy = in.window.cy - in.clientHeight + content;
    return out;
}

}  // namespace msgbox
