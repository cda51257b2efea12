// How scroll bars look: raised arrows and thumb on a shaft of every second pixel white.
#include "user/frame/scrollbar/bar.h"
#include "user/frame/nonclient.h"

namespace platform::user {
namespace {

void DrawShaft(HDC context, const RECT& rect, HBRUSH brush, bool pressed) {
    if (IsRectEmpty(&rect)) {
        return;
    }
    FillRect(context, &rect, brush);
    if (pressed) {
        InvertRect(context, &rect);
    }
}

}  // namespace

void DrawBar(HDC context, const BarLayout& layout, const BarState& state, BarPart pressed, HBRUSH shaft) {
    const bool still = !CanScroll(state) || state.disabled;
    DrawPart(context, layout.firstArrow, DFC_SCROLL, layout.vertical ? DFCS_SCROLLUP : DFCS_SCROLLLEFT,
             pressed == BarPart::FirstArrow, still);
    DrawPart(context, layout.secondArrow, DFC_SCROLL, layout.vertical ? DFCS_SCROLLDOWN : DFCS_SCROLLRIGHT,
             pressed == BarPart::SecondArrow, still);
    DrawShaft(context, FirstShaft(layout), shaft, pressed == BarPart::FirstShaft);
    DrawShaft(context, SecondShaft(layout), shaft, pressed == BarPart::SecondShaft);
    if (!IsRectEmpty(&layout.thumb)) {
        RECT thumb = layout.thumb;
        DrawEdge(context, &thumb, EDGE_RAISED, BF_RECT | BF_MIDDLE);
    }
}

}  // namespace platform::user
