// Text laid out in a rectangle.
#include <algorithm>
#include <cstring>
#include <string>

#include "gdi/context/raster.h"
#include "gdi/text/text.h"

using namespace platform::gdi;
namespace kernel = platform::kernel;

namespace {

struct TextLine {
    std::string text;    ///< without the prefix characters
    int underline = -1;  ///< index of the character that a prefix marked
    int width = 0;
    const char* next = nullptr;
};

class Layout {
  public:
    Layout(HDC handle, DeviceContext& context, UINT format)
        : handle_(handle),
          context_(context),
          font_(Realize(*context.state.font)),
          format_(format),
          tab_(TabWidth(font_)) {}
    int LineHeight() const {
        return font_.Height();
    }

    /// Takes the next line off the text: up to a line break, or to the last blank before `limit` where words wrap.
    TextLine Next(const char* at, const char* end, int limit) const {
        TextLine line;
        const bool wraps = (format_ & DT_WORDBREAK) && !(format_ & DT_SINGLELINE) && limit >= 0;
        std::size_t breakLength = 0;
        int breakWidth = 0;
        const char* breakNext = nullptr;
        bool inBlank = false;
        while (at < end) {
            const char* start = at;
            if (!(format_ & DT_SINGLELINE) && (*at == '\r' || *at == '\n')) {
                at += *at == '\r' && at + 1 < end && at[1] == '\n' ? 2 : 1;
                break;
            }
            if (*at == '&' && !(format_ & DT_NOPREFIX)) {
                if (++at == end) {
                    break;
                }
                if (*at != '&') {
                    line.underline = *at == '\r' || *at == '\n' ? -1 : static_cast<int>(line.text.size());
                    if (line.underline < 0) {
                        continue;
                    }
                }
            }
            const int bytes = Bytes(at, end);
            const int width = Advance(line.width, at, bytes);
            const bool blank = *at == ' ' || *at == '\t';
            if (wraps && !blank && line.width + width > limit && !line.text.empty()) {
                if (breakNext) {
                    line.text.resize(breakLength);
                    line.width = breakWidth;
                    at = breakNext;
                } else if (format_ & DT_EDITCONTROL) {
                    at = start;
                }
                if (breakNext || format_ & DT_EDITCONTROL) {
                    if (line.underline >= static_cast<int>(line.text.size())) {
                        line.underline = -1;
                    }
                    break;
                }
            }
            if (blank && !line.text.empty()) {
                if (!inBlank) {
                    breakLength = line.text.size();
                    breakWidth = line.width;
                }
                breakNext = at + bytes;
            }
            inBlank = blank;
            line.text.append(at, static_cast<std::size_t>(bytes));
            line.width += width;
            at += bytes;
            if (bytes == 2) {
                // Ideographs may be parted anywhere.
                breakLength = line.text.size();
                breakWidth = line.width;
                breakNext = at;
            }
        }
        // Blanks that hang over the edge at a line's end take no room.
        if (wraps && inBlank && line.width > limit && breakLength > 0) {
            line.text.resize(breakLength);
            line.width = breakWidth;
            line.underline = line.underline < static_cast<int>(breakLength) ? line.underline : -1;
        }
        line.next = at;
        return line;
    }

    /// Cuts a line that is too long, and says so with dots.
    void Shorten(TextLine& line, int limit) const {
        if (line.width <= limit || !(format_ & DT_END_ELLIPSIS)) {
            return;
        }
        static constexpr char kDots[] = "...";
        // At least one character stays.
        const std::size_t fitting = Fitting(line.text, limit - TextWidth(context_, kDots, 3));
        const std::size_t least = std::min(
            line.text.size(), static_cast<std::size_t>(Bytes(line.text.data(), line.text.data() + line.text.size())));
        line.text = line.text.substr(0, std::max(fitting, least)) + kDots;
        line.width = Width(line.text);
        if (line.underline >= static_cast<int>(line.text.size())) {
            line.underline = -1;
        }
    }

    void Draw(const TextLine& line, int x, int y, const RECT* clip) const {
        if (format_ & DT_EXPANDTABS) {
            TabbedText(handle_, context_, x, y, line.text, clip, true);
        } else {
            ExtTextOutA(handle_, x, y, clip ? ETO_CLIPPED : 0, clip, line.text.data(),
                        static_cast<UINT>(line.text.size()), nullptr);
        }
        if (line.underline >= 0) {
            Underline(line, x, y, clip);
        }
    }

    int Width(const std::string& text) const {
        int width = 0;
        for (const char *at = text.data(), *end = at + text.size(); at < end;) {
            const int bytes = Bytes(at, end);
            width += Advance(width, at, bytes);
            at += bytes;
        }
        return width;
    }

  private:
    static int Bytes(const char* at, const char* end) {
        return BytesAt(kernel::ActiveCodePage(), at, end - at);
    }

    int Advance(int from, const char* at, int bytes) const {
        if (*at == '\t' && format_ & DT_EXPANDTABS) {
            return (from / tab_ + 1) * tab_ - from;
        }
        return font_.Get(CharacterAt(kernel::ActiveCodePage(), at, bytes)).advance;
    }

    std::size_t Fitting(const std::string& text, int room) const {
        int width = 0;
        const char* at = text.data();
        const char* end = at + text.size();
        while (at < end) {
            const int bytes = Bytes(at, end);
            width += Advance(width, at, bytes);
            if (width > room) {
                break;
            }
            at += bytes;
        }
        return static_cast<std::size_t>(at - text.data());
    }

    void Underline(const TextLine& line, int x, int y, const RECT* clip) const {
        const auto index = static_cast<std::size_t>(line.underline);
        const int left = x + Width(line.text.substr(0, index));
        const int bytes = Bytes(line.text.data() + index, line.text.data() + line.text.size());
        const int width = Advance(0, line.text.data() + index, bytes);
        const int top = y + font_.Metrics().ascent + 1;
        RECT rule{left, top, left + std::max(1, width - 1), top + 1};
        if (clip && !IntersectRect(&rule, &rule, clip)) {
            return;
        }
        const Ink ink = PlainInk(context_, context_.state.textColour);
        Combine(context_, context_.ToSurface(rule), kCopyPattern, &ink);
    }

    HDC handle_;
    DeviceContext& context_;
    RealizedFont& font_;
    UINT format_;
    int tab_;
};

/// @returns the height of what was drawn.
int Run(HDC handle, DeviceContext& context, const char* text, int length, RECT& rect, UINT format) {
    const Layout layout(handle, context, format);
    const bool measuring = format & DT_CALCRECT;
    const bool single = format & DT_SINGLELINE;
    const bool unclipped = (format & DT_NOCLIP) || measuring;
    const int limit = rect.right - rect.left;
    const char* at = text;
    const char* end = text + length;
    int y = rect.top;
    if (single && !measuring && format & DT_VCENTER) {
        y = rect.top + (rect.bottom - rect.top - layout.LineHeight()) / 2;
    }
    const int first = y;
    int widest = 0;
    while (at < end) {
        TextLine line = layout.Next(at, end, std::max(limit, 0));
        const bool last = line.next >= end;
        at = line.next;
        if (last) {
            layout.Shorten(line, limit);
        }
        widest = std::max(widest, line.width);
        if (!measuring) {
            int x = rect.left;
            if (format & DT_CENTER) {
                x += (limit - line.width) / 2;
            } else if (format & DT_RIGHT) {
                x += limit - line.width;
            }
            layout.Draw(line, x, y, unclipped ? nullptr : &rect);
        }
        y += layout.LineHeight();
        const bool below = format & DT_EDITCONTROL ? y + layout.LineHeight() > rect.bottom : y >= rect.bottom;
        if (!unclipped && below) {
            break;
        }
        // A line break at the very end opens no further line.
        if (single) {
            break;
        }
    }
    if (measuring) {
        rect.right = rect.left + widest;
        rect.bottom = rect.top + y - first;
    } else if (single && format & DT_VCENTER) {
        return y - rect.top;
    }
    return y - first;
}

}  // namespace

int WINAPI DrawTextA(HDC handle, LPCSTR text, int length, LPRECT rect, UINT format) {
    const Drawing drawing(handle);
    if (!drawing || !text || !rect || length < -1) {
        return 0;
    }
    if (length == -1) {
        length = static_cast<int>(std::strlen(text));
    }
    return Guarded(0, [&] {
        if (length == 0) {
            const Layout layout(handle, *drawing, format);
            if (format & DT_CALCRECT) {
                rect->right = rect->left;
                rect->bottom = rect->top + (format & DT_SINGLELINE ? layout.LineHeight() : 0);
            }
            return layout.LineHeight();
        }
        return Run(handle, *drawing, text, length, *rect, format);
    });
}
