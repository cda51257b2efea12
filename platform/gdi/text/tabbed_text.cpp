// Text with tab stops, eight average characters apart.
#include <algorithm>

#include "gdi/context/device_context.h"
#include "gdi/text/text.h"

namespace platform::gdi {

int TabWidth(RealizedFont& font) {
    return std::max(1, 8 * font.Metrics().averageWidth);
}

int TabbedText(HDC handle, DeviceContext& context, int x, int y, const std::string& text, const RECT* clip, bool draw) {
    const int stop = TabWidth(Realize(*context.state.font));
    const char* at = text.data();
    const char* end = at + text.size();
    int width = 0;
    while (at < end) {
        const char* tab = std::find(at, end, '\t');
        const int run = static_cast<int>(tab - at);
        if (draw && run > 0) {
            ExtTextOutA(handle, x + width, y, clip ? ETO_CLIPPED : 0, clip, at, static_cast<UINT>(run), nullptr);
        }
        width += TextWidth(context, at, run);
        at = tab;
        if (at < end) {
            width = (width / stop + 1) * stop;
            ++at;
        }
    }
    return width;
}

void DrawTabbedText(HDC handle, int x, int y, const std::string& text) {
    DrawIn(handle, [&](DeviceContext& context) { return TabbedText(handle, context, x, y, text, nullptr, true); });
}

int TabbedTextWidth(HDC handle, const std::string& text) {
    return DrawIn(handle,
                  [&](DeviceContext& context) { return TabbedText(handle, context, 0, 0, text, nullptr, false); });
}

}  // namespace platform::gdi
