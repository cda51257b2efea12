// Making pens and brushes.
#include "gdi/context/objects.h"

namespace platform::gdi {

HBRUSH MakePatternBrush(HBITMAP pattern) {
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

}  // namespace platform::gdi

using namespace platform::gdi;

HPEN WINAPI CreatePen(int style, int, COLORREF colour) {
    auto pen = NewObject<Pen>();
    if (pen) {
        pen->style = style == PS_NULL ? UINT{PS_NULL} : UINT{PS_SOLID};
        pen->colour = colour & 0x00FFFFFF;
    }
    return FileObject<HPEN>(std::move(pen));
}

HBRUSH WINAPI CreateSolidBrush(COLORREF colour) {
    auto brush = NewObject<Brush>();
    if (brush) {
        brush->colour = colour & 0x00FFFFFF;
    }
    return FileObject<HBRUSH>(std::move(brush));
}
