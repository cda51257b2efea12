// Text with tab stops, eight average characters apart.
#include <algorithm>

#include "gdi/context/device_context.h"
#include "gdi/text/text.h"

namespace platform::gdi {

namespace {

int Tabbed(HDC handle, int x, int y, const std::string& text, bool draw) {
    const Drawing drawing(handle);
    if (!drawing) {
        return 0;
    }
    return Guarded(0, [&] {
        const int stop = std::max(1, 8 * Realize(*drawing->state.font).Metrics().averageWidth);
        const char* at = text.data();
        const char* end = at + text.size();
        int width = 0;
        while (at < end) {
            const char* tab = std::find(at, end, '\t');
            const int run = static_cast<int>(tab - at);
            if (draw && run > 0) {
                TextOutA(handle, x + width, y, at, run);
            }
            width += TextWidth(*drawing, at, run);
            at = tab;
            if (at < end) {
                width = (width / stop + 1) * stop;
                ++at;
            }
        }
        return width;
    });
}

}  // namespace

void DrawTabbedText(HDC context, int x, int y, const std::string& text) {
    Tabbed(context, x, y, text, true);
}

int TabbedTextWidth(HDC context, const std::string& text) {
    return Tabbed(context, 0, 0, text, false);
}

}  // namespace platform::gdi
