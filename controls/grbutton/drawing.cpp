// How a graphic button looks. Every line's place is part of the look: a bevel that is a pixel off is seen at once.
#include "cvutil32/grbutton.h"

#include "controls/frame/drawing.h"

#include <algorithm>

namespace grbutton {

namespace {

using frame::DrawPath;

auto PenOf(int colour) {
    return [=] { return CreatePen(PS_SOLID, 1, GetSysColor(colour)); };
}

auto BrushOf(int colour) {
    return [=] { return CreateSolidBrush(GetSysColor(colour)); };
}

struct Pens {
    HPEN dark;
    HPEN shadow;
    HPEN light;
};

void DrawOutline(HDC dc, RECT const& r, Pens const& pens) {
    DrawPath(
        dc, pens.dark,
        {{r.right - 1, r.top}, {r.right - 1, r.bottom - 1}, {r.left, r.bottom - 1}, {r.left, r.top}, {r.right, r.top}});
    DrawPath(dc, pens.shadow,
             {{r.right - 2, r.top + 1},
              {r.right - 2, r.bottom - 2},
              {r.left + 1, r.bottom - 2},
              {r.left + 1, r.top + 1},
              {r.right - 1, r.top + 1}});
}

void DrawRaised(HDC dc, RECT const& r, Pens const& pens) {
    DrawPath(dc, pens.dark, {{r.right - 1, r.top}, {r.right - 1, r.bottom - 1}, {r.left - 1, r.bottom - 1}});
    DrawPath(dc, pens.light, {{r.left, r.bottom - 2}, {r.left, r.top}, {r.right - 1, r.top}});
    DrawPath(dc, pens.shadow, {{r.right - 2, r.top + 1}, {r.right - 2, r.bottom - 2}, {r.left, r.bottom - 2}});
}

void DrawSunken(HDC dc, RECT const& r, Pens const& pens) {
    DrawPath(dc, pens.dark, {{r.left, r.bottom - 2}, {r.left, r.top}, {r.right - 1, r.top}});
    DrawPath(dc, pens.light, {{r.right - 1, r.top}, {r.right - 1, r.bottom - 1}, {r.left - 1, r.bottom - 1}});
    DrawPath(dc, pens.shadow, {{r.left + 1, r.bottom - 3}, {r.left + 1, r.top + 1}, {r.right - 2, r.top + 1}});
}

/// A context in memory; gone with this, and what is selected into it with it.
class MemoryDc {
  public:
    explicit MemoryDc(HDC like) : dc_(CreateCompatibleDC(like)) {}
    ~MemoryDc() {
        if (dc_) {
            DeleteDC(dc_);
        }
    }
    MemoryDc(MemoryDc const&) = delete;
    MemoryDc& operator=(MemoryDc const&) = delete;

    operator HDC() const {
        return dc_;
    }

  private:
    HDC dc_;
};

/// A bitmap that goes last, after the context that it is selected into.
class WorkBitmap {
  public:
    WorkBitmap() = default;
    ~WorkBitmap() {
        if (bitmap_) {
            DeleteObject(bitmap_);
        }
    }
    WorkBitmap(WorkBitmap const&) = delete;
    WorkBitmap& operator=(WorkBitmap const&) = delete;

    HBITMAP Create(HDC like, int width, int height) {
        return bitmap_ = CreateCompatibleBitmap(like, width, height);
    }

  private:
    HBITMAP bitmap_ = nullptr;
};

/// Lays the background where the mask is white, black elsewhere, and the picture over both by exclusive or. Without
/// memory for the second context the first one shows nothing; without a work bitmap only the background is lost.
void Compose(HDC target, HDC memory, WorkBitmap& work, HBITMAP image, HBITMAP mask, HBRUSH background,
             BITMAP const& size) {
    MemoryDc const second(target);
    if (!second) {
        return;
    }
    if (HBITMAP const bitmap = work.Create(target, size.bmWidth, size.bmHeight)) {
        frame::OrDefault<HBRUSH> const brush(background, BrushOf(COLOR_BTNFACE));
        frame::Selected const selected(memory, brush);
        SelectObject(memory, bitmap);
        SelectObject(second, mask);
        BitBlt(memory, 0, 0, size.bmWidth, size.bmHeight, second, 0, 0, MERGECOPY);
    }
    SelectObject(second, image);
    BitBlt(memory, 0, 0, size.bmWidth, size.bmHeight, second, 0, 0, SRCINVERT);
}

/// @return how far a picture is set in to be centred; a picture that is too large begins at the edge.
LONG Centred(LONG room, LONG size) {
    return std::max<LONG>((room - size) / 2, 0);
}

void DrawPicture(HDC dc, RECT const& face, LONG shift, HBITMAP image, HBITMAP mask, HBRUSH background, bool stretch) {
    WorkBitmap work;
    MemoryDc const memory(dc);
    if (!memory) {
        return;
    }
    BITMAP size = {};
    GetObjectA(image, sizeof size, &size);
    if (mask) {
        Compose(dc, memory, work, image, mask, background, size);
    } else {
        SelectObject(memory, image);
    }
    // One less each way: the pressed picture must not reach the edge.
    LONG const width = face.right - 1 - face.left;
    LONG const height = face.bottom - 1 - face.top;
    LONG const x = face.left + shift;
    LONG const y = face.top + shift;
    if (stretch) {
        StretchBlt(dc, x, y, width, height, memory, 0, 0, size.bmWidth, size.bmHeight, SRCCOPY);
    } else {
        BitBlt(dc, x + Centred(width, size.bmWidth), y + Centred(height, size.bmHeight), width, height, memory, 0, 0,
               SRCCOPY);
    }
}

}  // namespace

}  // namespace grbutton

CVAPI(void)
GRBUTTON_DrawButtonFrame(HDC dc, const RECT* item, RECT* face, BOOL pressed, BOOL outline, HPEN framePen,
                         HPEN shadowPen, HPEN lightPen, HBRUSH faceBrush) {
    if (!dc || !item) {
        return;
    }
    // The caller may want the face in the very rectangle that holds the item.
    RECT const whole = *item;
    frame::OrDefault<HPEN> const dark(framePen, grbutton::PenOf(COLOR_WINDOWFRAME));
    frame::OrDefault<HPEN> const shadow(shadowPen, grbutton::PenOf(COLOR_BTNSHADOW));
    frame::OrDefault<HPEN> const light(lightPen, grbutton::PenOf(COLOR_BTNHIGHLIGHT));
    frame::OrDefault<HBRUSH> const brush(faceBrush, grbutton::BrushOf(COLOR_BTNFACE));
    grbutton::Pens const pens = {dark, shadow, light};

    RECT rect = whole;
    FillRect(dc, &rect, brush);
    if (outline) {
        grbutton::DrawOutline(dc, rect, pens);
        InflateRect(&rect, -1, -1);
    }
    if (!pressed) {
        grbutton::DrawRaised(dc, rect, pens);
    } else if (!outline) {
        grbutton::DrawSunken(dc, rect, pens);
    }
    if (face) {
        *face = {whole.left + 2, whole.top + 2, whole.right - 2, whole.bottom - 2};
    }
}

CVAPI(void)
GRBUTTON_DrawButtonFace(HDC dc, const RECT* face, BOOL pressed, BOOL focus, BOOL disabled, HBITMAP image, HBITMAP mask,
                        HBRUSH background, BOOL stretch) {
    if (!dc || !face) {
        return;
    }
    if (image) {
        grbutton::DrawPicture(dc, *face, pressed ? 1 : 0, image, mask, background, stretch != FALSE);
    }
    if (focus && !disabled) {
        DrawFocusRect(dc, face);
    }
}
