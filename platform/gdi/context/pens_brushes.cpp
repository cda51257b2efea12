// Making pens and brushes.
#include "gdi/context/objects.h"

using namespace platform::gdi;

namespace {

HBRUSH PatternBrush(HBITMAP pattern) {
    const auto* bitmap = FindObject<Bitmap>(pattern);
    if (!bitmap) {
        return nullptr;
    }
    auto brush = NewObject<Brush>();
    if (!brush) {
        return FileObject<HBRUSH>(std::move(brush));
    }
    const Surface surface = bitmap->View();
    brush->style = BS_PATTERN;
    brush->hatch = reinterpret_cast<ULONG_PTR>(pattern);
    brush->width = surface.width;
    brush->height = surface.height;
    brush->monochrome = surface.monochrome;
    const std::size_t width = static_cast<std::size_t>(surface.width);
    brush->pixels.reset(new (std::nothrow) std::uint32_t[width * static_cast<std::size_t>(surface.height)]);
    if (!brush->pixels) {
        return FileObject<HBRUSH>(std::unique_ptr<Brush>());
    }
    for (int y = 0; y < surface.height; ++y) {
        std::uint32_t* row = brush->pixels.get() + static_cast<std::size_t>(y) * width;
        ReadRow(surface, 0, y, surface.width, row);
        if (!brush->monochrome) {
            for (std::size_t x = 0; x < width; ++x) {
                row[x] = ShownColour(surface, row[x]);
            }
        }
    }
    return FileObject<HBRUSH>(std::move(brush));
}

}  // namespace

HPEN WINAPI CreatePen(int style, int width, COLORREF colour) {
    auto pen = NewObject<Pen>();
    if (pen) {
        pen->style = style < PS_SOLID || style > PS_INSIDEFRAME ? UINT{PS_SOLID} : static_cast<UINT>(style);
        pen->width = width < 0 ? -width : width;
        pen->colour = colour & 0x00FFFFFF;
    }
    return FileObject<HPEN>(std::move(pen));
}

HPEN WINAPI CreatePenIndirect(const LOGPEN* pen) {
    return pen ? CreatePen(static_cast<int>(pen->lopnStyle), pen->lopnWidth.x, pen->lopnColor) : nullptr;
}

HBRUSH WINAPI CreateSolidBrush(COLORREF colour) {
    const LOGBRUSH logical{BS_SOLID, colour, 0};
    return CreateBrushIndirect(&logical);
}

HBRUSH WINAPI CreateHatchBrush(int hatch, COLORREF colour) {
    const LOGBRUSH logical{BS_HATCHED, colour, static_cast<ULONG_PTR>(hatch)};
    return CreateBrushIndirect(&logical);
}

HBRUSH WINAPI CreatePatternBrush(HBITMAP bitmap) {
    return PatternBrush(bitmap);
}

HBRUSH WINAPI CreateBrushIndirect(const LOGBRUSH* logical) {
    if (!logical) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    if (logical->lbStyle == BS_PATTERN) {
        return PatternBrush(reinterpret_cast<HBITMAP>(logical->lbHatch));
    }
    if (logical->lbStyle > BS_HATCHED || (logical->lbStyle == BS_HATCHED && logical->lbHatch > HS_DIAGCROSS)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    auto brush = NewObject<Brush>();
    if (brush) {
        brush->style = logical->lbStyle;
        brush->colour = logical->lbColor & 0x00FFFFFF;
        brush->hatch = logical->lbStyle == BS_HATCHED ? logical->lbHatch : 0;
    }
    return FileObject<HBRUSH>(std::move(brush));
}
