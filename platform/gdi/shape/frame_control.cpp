// The parts that windows, scroll bars and buttons are drawn from.
#include <algorithm>
#include <array>
#include <string_view>

#include "gdi/shape/system_ink.h"

namespace platform::gdi {

namespace {

using Picture = std::span<const std::string_view>;

constexpr std::array<std::string_view, 7> kClose{"XX....XX", ".XX..XX.", "..XXXX..", "...XX...",
                                                 "..XXXX..", ".XX..XX.", "XX....XX"};
constexpr std::array<std::string_view, 2> kMinimise{"XXXXXX", "XXXXXX"};
constexpr std::array<std::string_view, 9> kMaximise{"XXXXXXXXX", "XXXXXXXXX", "X.......X", "X.......X", "X.......X",
                                                    "X.......X", "X.......X", "X.......X", "XXXXXXXXX"};
constexpr std::array<std::string_view, 9> kRestore{"..XXXXXX", "..XXXXXX", "..X....X", "XXXXXX.X", "XXXXXX.X",
                                                   "X....XXX", "X....X..", "X....X..", "XXXXXX.."};
constexpr std::array<std::string_view, 9> kHelp{".XXXX.", "XX..XX", "XX..XX", "...XX.", "..XX..",
                                                "..XX..", "......", "..XX..", "..XX.."};
constexpr std::array<std::string_view, 7> kCheck{"......X", ".....XX", "X...XXX", "XX.XXX.",
                                                 "XXXXX..", ".XXX...", "..X...."};
// Shadow, dark shadow, light and highlight around the window colour.
constexpr std::array<std::string_view, 12> kRadio{"    SSSS    ", "  SSDDDDSS  ", " SDDwwwwDDH ", " SDwwwwwwLH ",
                                                  "SDwwwwwwwwLH", "SDwwwwwwwwLH", "SDwwwwwwwwLH", "SDwwwwwwwwLH",
                                                  " SDwwwwwwLH ", " SLLwwwwLLH ", "  HHLLLLHH  ", "    HHHH    "};
constexpr std::array<std::string_view, 4> kDot{".XX.", "XXXX", "XXXX", ".XX."};

/// Draws the set pixels of a picture, each `scale` pixels large.
void DrawPicture(SystemPainter& painter, Picture picture, int x, int y, int scale, int colour) {
    for (std::size_t row = 0; row < picture.size(); ++row) {
        const std::string_view line = picture[row];
        for (std::size_t at = 0; at < line.size();) {
            std::size_t end = at + 1;
            while (end < line.size() && line[end] == line[at]) {
                ++end;
            }
            if (line[at] == 'X') {
                const int top = y + static_cast<int>(row) * scale;
                painter.Fill(x + static_cast<int>(at) * scale, top, x + static_cast<int>(end) * scale, top + scale,
                             colour);
            }
            at = end;
        }
    }
}

/// Ink for a part that cannot be used: grey with a white edge below and right of it.
template <class Draw>
void DrawInked(UINT state, Draw&& draw) {
    const int shift = state & DFCS_PUSHED ? 1 : 0;
    if (state & DFCS_INACTIVE) {
        draw(shift + 1, COLOR_BTNHIGHLIGHT);
        draw(shift, COLOR_BTNSHADOW);
    } else {
        draw(shift, COLOR_BTNTEXT);
    }
}

void PushFrame(SystemPainter& painter, RECT rect, UINT state) {
    PaintEdge(painter, rect, state & DFCS_PUSHED ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT | BF_SOFT | BF_MIDDLE);
}

bool Caption(SystemPainter& painter, const RECT& rect, UINT state) {
    struct Sign {
        Picture picture;
        int x;
        int y;
    };
    static constexpr std::array<Sign, 5> kSigns{
        {{kClose, 4, 3}, {kMinimise, 4, 9}, {kMaximise, 3, 2}, {kRestore, 3, 2}, {kHelp, 5, 2}}};
    constexpr int kWidth = 16;
    constexpr int kHeight = 14;
    const UINT which = state & 0x00FF;
    if (which >= kSigns.size()) {
        return false;
    }
    PushFrame(painter, rect, state);
    const int width = rect.right - rect.left;
    const int height = rect.bottom - rect.top;
    const int scale = std::max(1, std::min((width + 4) / kWidth, (height + 4) / kHeight));
    const Sign& sign = kSigns[which];
    const int x = rect.left + (width - kWidth * scale) / 2 + sign.x * scale;
    const int y = rect.top + (height - kHeight * scale) / 2 + sign.y * scale;
    DrawInked(state,
              [&](int shift, int colour) { DrawPicture(painter, sign.picture, x + shift, y + shift, scale, colour); });
    return true;
}

/// A triangle of rows 1, 3, 5 ... pixels wide.
void DrawTriangle(SystemPainter& painter, const RECT& rect, UINT direction, int shift, int colour) {
    const int width = rect.right - rect.left;
    const int height = rect.bottom - rect.top;
    const bool upright = direction == DFCS_SCROLLUP || direction == DFCS_SCROLLDOWN;
    const int rows = std::max(1, (std::min(width, height) - 4) / 3);
    const int along = upright ? height : width;
    const int across = upright ? width : height;
    const int first = (along - rows) / 2 + shift;
    const int middle = (across - 1) / 2 + shift;
    const bool growing = direction == DFCS_SCROLLUP || direction == DFCS_SCROLLLEFT;
    for (int i = 0; i < rows; ++i) {
        const int half = growing ? i : rows - 1 - i;
        if (upright) {
            painter.Fill(rect.left + middle - half, rect.top + first + i, rect.left + middle + half + 1,
                         rect.top + first + i + 1, colour);
        } else {
            painter.Fill(rect.left + first + i, rect.top + middle - half, rect.left + first + i + 1,
                         rect.top + middle + half + 1, colour);
        }
    }
}

bool Scroll(SystemPainter& painter, const RECT& rect, UINT state) {
    UINT direction = state & 0x00FF;
    if (direction == DFCS_SCROLLCOMBOBOX) {
        direction = DFCS_SCROLLDOWN;
    }
    if (direction > DFCS_SCROLLRIGHT) {
        return false;
    }
    // A pressed arrow lies flat within a line of shadow.
    RECT frame = rect;
    const UINT flat = state & DFCS_PUSHED ? BF_FLAT : 0;
    PaintEdge(painter, frame, EDGE_RAISED, BF_RECT | BF_MIDDLE | flat);
    DrawInked(state, [&](int shift, int colour) { DrawTriangle(painter, rect, direction, shift, colour); });
    return true;
}

RECT CentredSquare(const RECT& rect) {
    const int size = std::min(rect.right - rect.left, rect.bottom - rect.top);
    const int x = rect.left + (rect.right - rect.left - size) / 2;
    const int y = rect.top + (rect.bottom - rect.top - size) / 2;
    return {x, y, x + size, y + size};
}

void CheckBox(SystemPainter& painter, const RECT& rect, UINT state) {
    constexpr int kBox = 13;
    RECT box = CentredSquare(rect);
    const int size = box.right - box.left;
    const int left = box.left;
    const int top = box.top;
    PaintEdge(painter, box, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
    const bool third = (state & DFCS_BUTTON3STATE) && (state & DFCS_CHECKED);
    if (third) {
        painter.Dither(box, COLOR_BTNHIGHLIGHT, COLOR_BTNFACE);
    } else {
        painter.Fill(box, state & (DFCS_PUSHED | DFCS_INACTIVE) ? COLOR_BTNFACE : COLOR_WINDOW);
    }
    if (state & DFCS_CHECKED) {
        const int scale = std::max(1, size / kBox);
        const int inset = (size - 7 * scale) / 2;
        const int colour = third || state & DFCS_INACTIVE ? COLOR_BTNSHADOW : COLOR_WINDOWTEXT;
        DrawPicture(painter, kCheck, left + inset, top + inset, scale, colour);
    }
}

void Radio(SystemPainter& painter, const RECT& rect, UINT state) {
    const RECT square = CentredSquare(rect);
    const int side = static_cast<int>(kRadio.size());
    const int size = square.right - square.left;
    const int back = state & (DFCS_PUSHED | DFCS_INACTIVE) ? COLOR_BTNFACE : COLOR_WINDOW;
    const int colours[] = {COLOR_BTNSHADOW, COLOR_3DDKSHADOW, COLOR_3DLIGHT, COLOR_BTNHIGHLIGHT, back};
    // Sizes between the multiples of the picture lie centred in what is left.
    const int scale = std::max(1, size / side);
    const int x = square.left + std::max(0, (size - side * scale) / 2);
    const int y = square.top + std::max(0, (size - side * scale) / 2);
    for (int row = 0; row < side; ++row) {
        for (int column = 0; column < side; ++column) {
            const char letter = kRadio[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
            if (const std::size_t at = std::string_view("SDLHw").find(letter); at != std::string_view::npos) {
                painter.Fill(x + column * scale, y + row * scale, x + (column + 1) * scale, y + (row + 1) * scale,
                             colours[at]);
            }
        }
    }
    if (state & DFCS_CHECKED) {
        DrawPicture(painter, kDot, x + 4 * scale, y + 4 * scale, scale,
                    state & DFCS_INACTIVE ? COLOR_BTNSHADOW : COLOR_WINDOWTEXT);
    }
}

void Button(SystemPainter& painter, const RECT& rect, UINT state) {
    if (state & DFCS_BUTTONPUSH) {
        PushFrame(painter, rect, state);
    } else if (state & DFCS_BUTTONRADIO) {
        Radio(painter, rect, state);
    } else {
        CheckBox(painter, rect, state);
    }
}

}  // namespace

}  // namespace platform::gdi

using namespace platform::gdi;

BOOL WINAPI DrawFrameControl(HDC handle, LPRECT rect, UINT type, UINT state) {
    return DrawIn(handle, [&](DeviceContext& context) -> BOOL {
        SystemPainter painter(context);
        switch (rect ? type : 0) {
            case DFC_CAPTION:
                return Caption(painter, *rect, state);
            case DFC_SCROLL:
                return Scroll(painter, *rect, state);
            case DFC_BUTTON:
                Button(painter, *rect, state);
                return TRUE;
            default:
                return FALSE;
        }
    });
}
