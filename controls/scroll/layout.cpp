#include "controls/scroll/layout.h"

namespace scroll {

RECT ArrowRect(bool vertical, Arrow arrow, RECT const& client) {
    LONG const right = client.right;
    LONG const bottom = client.bottom;
    if (vertical) {
        return arrow == Arrow::kFirst ? RECT{0, bottom / 2, right - 1, bottom - 1} : RECT{0, 0, right - 1, bottom / 2};
    }
    return arrow == Arrow::kFirst ? RECT{0, 0, right / 2, bottom - 1} : RECT{right / 2, 0, right - 1, bottom - 1};
}

Glyph ArrowGlyph(bool vertical, Arrow arrow) {
    if (vertical) {
        return arrow == Arrow::kFirst ? Glyph::kDown : Glyph::kUp;
    }
    return arrow == Arrow::kFirst ? Glyph::kLeft : Glyph::kRight;
}

bool IsInside(RECT const& arrow, POINT point) {
    return point.x > arrow.left && point.x < arrow.right && point.y > arrow.top && point.y < arrow.bottom;
}

int AttachedWidth(bool vertical, int height) {
    return vertical ? height * 9 / 10 : height * 10 / 9;
}

std::array<Line, 4> GlyphLines(Glyph glyph, RECT const& arrow, bool pressed) {
    LONG const cx = arrow.left + (arrow.right - arrow.left) / 2;
    LONG const cy = arrow.top + (arrow.bottom - arrow.top) / 2;
    // By the place in the bar, not by the arrow's size: the arrow farther from the corner has the blunter triangle.
    LONG const stepX = (cx - 2) / 6;
    LONG const stepY = (cy - 2) / 4;
    LONG const offset = pressed ? 1 : 0;

    std::array<Line, 4> lines;
    for (LONG i = 1; i <= 4; ++i) {
        LONG const a = i * stepX;
        LONG const b = i * stepY;
        LONG x = 0;
        LONG y = 0;
        switch (glyph) {
            case Glyph::kUp:
                y = cy + i - 3;
                break;
            case Glyph::kDown:
                y = cy - i + 2;
                break;
            case Glyph::kLeft:
                x = cx + i - 3;
                break;
            case Glyph::kRight:
                x = cx - i + 2;
                break;
        }
        // An up or down triangle that leaves the top of the bar loses that line to an upright one at the left edge.
        lines[i - 1] = y > 0 ? Line{{cx - a + offset + 1, y + offset}, {cx + a + offset + 1, y + offset}}
                             : Line{{x + offset, cy - b + offset}, {x + offset, cy + b + offset}};
    }
    return lines;
}

}  // namespace scroll
