// Text with tab stops, and greyed text.
#include <algorithm>
#include <cstring>

#include "gdi/text/text.h"

using namespace platform::gdi;

namespace {

class Tabs {
  public:
    Tabs(DeviceContext& context, int count, const INT* stops) : count_(count), stops_(stops) {
        regular_ = std::max(1, 8 * Realize(*context.state.font).Metrics().averageWidth);
        if (count == 1 && stops && stops[0] > 0) {
            regular_ = stops[0];
            count_ = 0;
        } else if (!stops) {
            count_ = 0;
        }
    }
    /// @returns the first stop right of a position.
    int After(int position) const {
        for (int i = 0; i < count_; ++i) {
            if (stops_[i] > position) {
                return stops_[i];
            }
        }
        return position >= 0 ? (position / regular_ + 1) * regular_ : 0;
    }

  private:
    int count_;
    const INT* stops_;
    int regular_;
};

LONG Tabbed(HDC handle, int x, int y, LPCSTR text, int length, int count, const INT* stops, int origin, bool draw) {
    const Drawing drawing(handle);
    if (!drawing || !text) {
        return 0;
    }
    if (length < 0) {
        length = static_cast<int>(std::strlen(text));
    }
    return Guarded<LONG>(0, [&] {
        const Tabs tabs(*drawing, count, stops);
        const char* at = text;
        const char* end = text + length;
        int pen = x;
        while (at < end) {
            const char* stop = std::find(at, end, '\t');
            const int run = static_cast<int>(stop - at);
            if (draw && run > 0) {
                TextOutA(handle, pen, y, at, run);
            }
            pen += TextWidth(*drawing, at, run);
            at = stop;
            if (at < end) {
                pen = origin + tabs.After(pen - origin);
                ++at;
            }
        }
        return MAKELONG(pen - x, Realize(*drawing->state.font).Height());
    });
}

}  // namespace

LONG WINAPI TabbedTextOutA(HDC context, int x, int y, LPCSTR text, int length, int tabs, const INT* tabStops,
                           int tabOrigin) {
    return Tabbed(context, x, y, text, length, tabs, tabStops, tabOrigin, true);
}

DWORD WINAPI GetTabbedTextExtentA(HDC context, LPCSTR text, int length, int tabs, const INT* tabStops) {
    return static_cast<DWORD>(Tabbed(context, 0, 0, text, length, tabs, tabStops, 0, false));
}

BOOL WINAPI GrayStringA(HDC context, HBRUSH brush, GRAYSTRINGPROC output, LPARAM data, int length, int x, int y,
                        int width, int height) {
    if (!FindObject<DeviceContext>(context)) {
        return FALSE;
    }
    const char* text = reinterpret_cast<const char*>(data);
    if (length == 0 && text) {
        length = static_cast<int>(std::strlen(text));
    }
    SIZE size{};
    if ((width == 0 || height == 0) && text) {
        GetTextExtentPoint32A(context, text, std::max(length, 0), &size);
    }
    width = width ? width : size.cx;
    height = height ? height : size.cy;
    if (width <= 0 || height <= 0) {
        return FALSE;
    }
    // The text becomes a mask; every other pixel of it goes, and the brush shines through the rest.
    const HDC memory = CreateCompatibleDC(context);
    const HBITMAP mask = CreateBitmap(width, height, 1, 1, nullptr);
    BOOL drawn = FALSE;
    if (memory && mask) {
        const HGDIOBJ previous = SelectObject(memory, mask);
        const HGDIOBJ font = SelectObject(memory, GetCurrentObject(context, OBJ_FONT));
        SetTextColor(memory, RGB(255, 255, 255));
        SetBkMode(memory, TRANSPARENT);
        const BOOL shown = output ? output(memory, data, length) : TextOutA(memory, 0, 0, text, length);
        if (shown || length == -1) {
            if (shown) {
                constexpr DWORD kAndPattern = 0x00A000C9;
                static constexpr WORD kEveryOther[8] = {0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA};
                const HBITMAP dots = CreateBitmap(8, 8, 1, 1, kEveryOther);
                const HBRUSH holes = CreatePatternBrush(dots);
                const HGDIOBJ solid = SelectObject(memory, holes);
                PatBlt(memory, 0, 0, width, height, kAndPattern);
                SelectObject(memory, solid);
                DeleteObject(holes);
                DeleteObject(dots);
            }
            constexpr DWORD kPatternThroughMask = 0x00E20746;
            const int saved = SaveDC(context);
            const HBRUSH own = brush ? nullptr : CreateSolidBrush(GetTextColor(context));
            SelectObject(context, brush ? brush : own);
            SetTextColor(context, RGB(0, 0, 0));
            SetBkColor(context, RGB(255, 255, 255));
            drawn = BitBlt(context, x, y, width, height, memory, 0, 0, kPatternThroughMask);
            RestoreDC(context, saved);
            if (own) {
                DeleteObject(own);
            }
        }
        SelectObject(memory, font);
        SelectObject(memory, previous);
    }
    if (mask) {
        DeleteObject(mask);
    }
    if (memory) {
        DeleteDC(memory);
    }
    return drawn;
}
