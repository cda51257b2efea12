#include "gdi/text/text.h"

#include <algorithm>
#include <cstring>

#include "gdi/context/raster.h"

namespace platform::gdi {

namespace {

struct Placed {
    const Glyph* glyph;
    int x;
    char16_t character;
};

/// Glyphs with their places; short texts need no memory of their own.
class Line {
  public:
    void Add(const Placed& placed) {
        if (count_ < few_.size()) {
            few_[count_++] = placed;
        } else {
            many_.push_back(placed);
        }
    }
    template <class Visit>
    void ForEach(Visit&& visit) const {
        for (std::size_t i = 0; i < count_; ++i) {
            visit(few_[i]);
        }
        for (const Placed& placed : many_) {
            visit(placed);
        }
    }

  private:
    std::array<Placed, 128> few_;
    std::size_t count_ = 0;
    std::vector<Placed> many_;
};

void DrawGlyph(const Surface& surface, const RECT& clip, const Glyph& glyph, int x, int y, std::uint32_t ink) {
    const int left = std::max<int>(clip.left, x);
    const int right = std::min<int>(clip.right, x + glyph.width);
    const int top = std::max<int>(clip.top, y);
    const int bottom = std::min<int>(clip.bottom, y + glyph.height);
    for (int row = top; row < bottom; ++row) {
        const std::uint8_t* coverage = glyph.coverage.data() + static_cast<std::ptrdiff_t>(row - y) * glyph.width - x;
        if (surface.bitsPerPixel == 32) {
            std::uint32_t* out = surface.Row32(row);
            for (int column = left; column < right; ++column) {
                out[column] = coverage[column] ? ink : out[column];
            }
            continue;
        }
        for (int column = left; column < right; ++column) {
            if (coverage[column]) {
                WritePixel(surface, column, row, ink);
            }
        }
    }
}

void DrawLine(DeviceContext& context, const Line& line, RealizedFont& font, const RECT& cell, const RECT* limit) {
    const std::uint32_t ink = NativeColour(context.surface, PixelOf(context.state.textColour));
    const int baseline = cell.top + font.Metrics().ascent;
    // Slanted and overhanging glyphs reach beyond the cell.
    const int slack = font.Height();
    const RECT reach{cell.left - slack, cell.top - slack, cell.right + slack, cell.bottom + slack};
    for (const RECT& each : context.Drawable().Rects()) {
        const RECT clip = Cut(limit ? Cut(each, *limit) : each, reach);
        if (!Holds(clip)) {
            continue;
        }
        RECT touched{INT32_MAX, INT32_MAX, INT32_MIN, INT32_MIN};
        line.ForEach([&](const Placed& placed) {
            const Glyph large = placed.glyph->large ? font.GetLarge(placed.character) : Glyph{};
            const Glyph& glyph = placed.glyph->large ? large : *placed.glyph;
            const int x = cell.left + placed.x + glyph.left;
            const int y = baseline - glyph.top;
            if (glyph.width == 0 || x >= clip.right || x + glyph.width <= clip.left) {
                return;
            }
            DrawGlyph(context.surface, clip, glyph, x, y, ink);
            touched = {std::min<LONG>(touched.left, x), std::min<LONG>(touched.top, y),
                       std::max<LONG>(touched.right, x + glyph.width),
                       std::max<LONG>(touched.bottom, y + glyph.height)};
        });
        touched = Cut(touched, clip);
        if (Holds(touched)) {
            context.Drawn(touched);
        }
    }
    const auto rule = [&](int y, int thick) {
        RECT rect{cell.left, y, cell.right, y + thick};
        if (limit) {
            rect = Cut(rect, *limit);
        }
        if (Holds(rect)) {
            const Ink plain = PlainInk(context, context.state.textColour);
            Combine(context, rect, kCopyPattern, &plain);
        }
    };
    const int thick = std::max(1, font.Height() / 16);
    if (font.Underlined()) {
        rule(baseline + std::max(1, font.Metrics().descent / 3), thick);
    }
    if (font.StruckOut()) {
        rule(baseline - font.Metrics().ascent / 3, thick);
    }
}

}  // namespace

int TextWidth(DeviceContext& context, const char* text, int length) {
    RealizedFont& font = Realize(*context.state.font);
    int width = 0;
    ForEachCharacter(text, length, [&](int, int, char16_t character) { width += font.Get(character).advance; });
    return width;
}

}  // namespace platform::gdi

using namespace platform::gdi;

BOOL WINAPI TextOutA(HDC context, int x, int y, LPCSTR text, int length) {
    return ExtTextOutA(context, x, y, 0, nullptr, text, static_cast<UINT>(std::max(length, 0)), nullptr);
}

BOOL WINAPI ExtTextOutA(HDC handle, int x, int y, UINT options, const RECT* rect, LPCSTR text, UINT length,
                        const INT* widths) {
    const Drawing drawing(handle);
    if (!drawing || (!text && length > 0) || length > INT32_MAX) {
        return FALSE;
    }
    return Guarded(FALSE, [&] {
        const DrawState& state = drawing->state;
        RealizedFont& font = Realize(*state.font);
        Line line;
        int width = 0;
        ForEachCharacter(text, static_cast<int>(length), [&](int index, int bytes, char16_t character) {
            const Glyph& glyph = font.Get(character);
            line.Add({&glyph, width, character});
            if (widths) {
                width += widths[index] + (bytes == 2 ? widths[index + 1] : 0);
            } else {
                width += glyph.advance;
            }
        });
        const POINT at = drawing->ToSurface(x, y);
        const RECT cell{at.x, at.y, at.x + width, at.y + font.Height()};
        const RECT area = rect ? drawing->ToSurface(*rect) : RECT{};
        const RECT* limit = rect && options & ETO_CLIPPED ? &area : nullptr;
        const Ink back = PlainInk(*drawing, state.backColour);
        if (rect && options & ETO_OPAQUE) {
            Combine(*drawing, area, kCopyPattern, &back);
        }
        if (state.backMode == OPAQUE && length > 0) {
            // What the opaque rectangle has filled need not be filled again.
            const RECT shown = limit ? Cut(cell, area) : cell;
            const bool filled = rect && options & ETO_OPAQUE && shown.left >= area.left && shown.top >= area.top &&
                                shown.right <= area.right && shown.bottom <= area.bottom;
            if (Holds(shown) && !filled) {
                Combine(*drawing, shown, kCopyPattern, &back);
            }
        }
        if (length > 0) {
            DrawLine(*drawing, line, font, cell, limit);
        }
        return TRUE;
    });
}

BOOL WINAPI GetTextExtentPoint32A(HDC handle, LPCSTR text, int length, LPSIZE size) {
    auto* context = FindObject<DeviceContext>(handle);
    if (!context || !size || length < 0 || (!text && length > 0)) {
        return FALSE;
    }
    return Guarded(FALSE, [&] {
        // No text is not even as high as a line.
        *size = length == 0 ? SIZE{} : SIZE{TextWidth(*context, text, length), Realize(*context->state.font).Height()};
        return TRUE;
    });
}
