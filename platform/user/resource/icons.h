/// @file icons.h
/// Icons and cursors as pixels.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace platform::user {

struct Window;

/// The bit of a pixel where the mask is clear; the rest of it is 0x00RRGGBB, which is laid over the ground by exclusive or.
constexpr std::uint32_t kTransparent = 0xFF000000;

struct IconPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;  ///< the top row first
};

/// What an icon's or a cursor's handle leads to.
struct Icon {
    unsigned number = 0;  ///< of the system's own: IDI_ or IDC_ as a number
    IconPicture picture;  ///< cursors have none: the display knows their shapes
};

/// @returns the picture of one of the system's icons, always. Throws bad_alloc.
std::optional<IconPicture> DrawSystemIcon(unsigned number);

/// Reads an icon from a module's resources, in the size nearest to the usual one. Throws bad_alloc.
/// @returns nothing, with the error code set, when it is missing or damaged.
std::optional<IconPicture> ReadIconResource(HINSTANCE instance, LPCSTR name);

/// Draws an icon, stretched to the place. @returns false, with the error set, when it could not be drawn.
bool DrawIconIn(HDC context, const RECT& place, HICON icon);

/// @returns an icon's width and height; zeros, and no error code, for anything else.
SIZE IconSize(HICON icon);

/// @returns the icon that stands in a window's caption, null for none. Lock held.
HICON CaptionIcon(const Window* window);

/// @returns the number of the system cursor that a cursor shows (IDC_ARROW ... as a number), 0 for none.
unsigned CursorShape(HCURSOR cursor);

}  // namespace platform::user
