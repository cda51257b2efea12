#include "gdi/context/syscolors.h"

#include <array>

#include "gdi/context/context.h"

namespace platform::gdi {

void (*syscolorsChanged)() = nullptr;

namespace {

constexpr int kColours = COLOR_GRADIENTINACTIVECAPTION + 1;

struct ColourTable {
    std::array<std::atomic<COLORREF>, kColours> values;
    std::array<HBRUSH, kColours> brushes{};
};

// The colours of the 1995 desktop, in the order of their indices.
constexpr std::array<COLORREF, kColours> kStandard{
    RGB(192, 192, 192), RGB(0, 128, 128),   RGB(0, 0, 128),     RGB(128, 128, 128), RGB(192, 192, 192),
    RGB(255, 255, 255), RGB(0, 0, 0),       RGB(0, 0, 0),       RGB(0, 0, 0),       RGB(255, 255, 255),
    RGB(192, 192, 192), RGB(192, 192, 192), RGB(128, 128, 128), RGB(0, 0, 128),     RGB(255, 255, 255),
    RGB(192, 192, 192), RGB(128, 128, 128), RGB(128, 128, 128), RGB(0, 0, 0),       RGB(192, 192, 192),
    RGB(255, 255, 255), RGB(0, 0, 0),       RGB(223, 223, 223), RGB(0, 0, 0),       RGB(255, 255, 225),
    RGB(192, 192, 192), RGB(0, 0, 255),     RGB(0, 0, 128),     RGB(128, 128, 128)};

ColourTable& Colours() {
    static ColourTable& table = *[] {
        static ColourTable made;
        for (std::size_t i = 0; i < kStandard.size(); ++i) {
            made.values[i] = kStandard[i];
            made.brushes[i] = MakeStockBrush(kStandard[i]);
        }
        return &made;
    }();
    return table;
}

bool Known(int index) {
    return index >= 0 && index < kColours;
}

}  // namespace

std::uint32_t SystemColourPixel(int index) {
    return PixelOf(GetSysColor(index));
}

}  // namespace platform::gdi

using namespace platform::gdi;

DWORD WINAPI GetSysColor(int index) {
    return Known(index) ? Colours().values[static_cast<std::size_t>(index)].load(std::memory_order_relaxed) : 0;
}

HBRUSH WINAPI GetSysColorBrush(int index) {
    return Known(index) ? Colours().brushes[static_cast<std::size_t>(index)] : nullptr;
}

BOOL WINAPI SetSysColors(int count, const INT* elements, const COLORREF* colours) {
    if (count < 0 || (count > 0 && (!elements || !colours))) {
        return Fail(ERROR_INVALID_PARAMETER, FALSE);
    }
    {
        const ScreenGuard guard(ScreenLock());
        for (int i = 0; i < count; ++i) {
            if (Known(elements[i])) {
                const auto index = static_cast<std::size_t>(elements[i]);
                Colours().values[index] = colours[i] & 0x00FFFFFF;
                RecolourBrush(Colours().brushes[index], colours[i] & 0x00FFFFFF);
            }
        }
    }
    if (count > 0 && syscolorsChanged) {
        syscolorsChanged();
    }
    return TRUE;
}
