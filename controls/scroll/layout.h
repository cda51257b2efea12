// Where the arrows of a micro scroll bar lie, which one a point hits, how large an attached bar is, and the lines of
// the triangles. Arithmetic only.
#pragma once

#include <windows.h>

#include <array>

namespace scroll {

enum class Arrow { kFirst, kSecond };

enum class Glyph { kUp, kDown, kLeft, kRight };

/// The first arrow is the lower or left one, the second the upper or right one. @param client  left and top 0
RECT ArrowRect(bool vertical, Arrow arrow, RECT const& client);

Glyph ArrowGlyph(bool vertical, Arrow arrow);

/// @return whether the point lies inside the arrow; the edges do not belong to it.
bool IsInside(RECT const& arrow, POINT point);

/// @return width of a bar attached to a window of the given height.
int AttachedWidth(bool vertical, int height);

struct Line {
    POINT from;
    POINT to;  ///< not drawn
};

/// The triangle of an arrow, from its tip to its base.
std::array<Line, 4> GlyphLines(Glyph glyph, RECT const& arrow, bool pressed);

}  // namespace scroll
