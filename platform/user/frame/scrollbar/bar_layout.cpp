// Where the parts of a scroll bar lie, and what its numbers mean.
#include <algorithm>
#include <cstdint>
#include <limits>

#include "user/frame/scrollbar/bar.h"

namespace platform::user {
namespace {

constexpr int kLeastThumb = 8;

/// Positions along a bar as one coordinate.
struct Along {
    const bool vertical;

    int From(const RECT& rect) const {
        return vertical ? rect.top : rect.left;
    }
    int To(const RECT& rect) const {
        return vertical ? rect.bottom : rect.right;
    }
    RECT Part(RECT rect, int from, int to) const {
        (vertical ? rect.top : rect.left) = from;
        (vertical ? rect.bottom : rect.right) = to;
        return rect;
    }
};

int ShaftLength(const BarLayout& layout) {
    const Along along{layout.vertical};
    return along.From(layout.secondArrow) - along.To(layout.firstArrow);
}

int ThumbLength(const BarState& state, int shaft) {
    if (state.page <= 0) {
        return GetSystemMetrics(SM_CYVTHUMB);
    }
    const std::int64_t range = std::int64_t{state.high} - state.low + 1;
    return std::max(kLeastThumb, static_cast<int>(std::int64_t{shaft} * state.page / range));
}

}  // namespace

int LastPosition(const BarState& state) {
    const std::int64_t last = std::int64_t{state.high} - std::max(state.page - 1, 0);
    return static_cast<int>(std::max<std::int64_t>(last, state.low));
}

bool CanScroll(const BarState& state) {
    return LastPosition(state) > state.low;
}

BarLayout LayOutBar(const RECT& whole, bool vertical, const BarState& state) {
    const Along along{vertical};
    const int from = along.From(whole);
    const int to = along.To(whole);
    const int arrow = std::min(GetSystemMetrics(SM_CYVSCROLL), (to - from) / 2);
    BarLayout layout{vertical, whole, along.Part(whole, from, from + arrow), {}, along.Part(whole, to - arrow, to)};
    const int shaft = ShaftLength(layout);
    const int thumb = ThumbLength(state, shaft);
    if (!CanScroll(state) || state.disabled || thumb > shaft) {
        return layout;
    }
    const std::int64_t range = std::int64_t{LastPosition(state)} - state.low;
    const std::int64_t offset =
        state.dragging ? state.thumbOffset
                       : ((std::int64_t{state.position} - state.low) * (shaft - thumb) + range / 2) / range;
    const int start = from + arrow + static_cast<int>(offset);
    layout.thumb = along.Part(whole, start, start + thumb);
    return layout;
}

RECT FirstShaft(const BarLayout& layout) {
    const Along along{layout.vertical};
    const int end = IsRectEmpty(&layout.thumb) ? along.From(layout.secondArrow) : along.From(layout.thumb);
    return along.Part(layout.whole, along.To(layout.firstArrow), end);
}

RECT SecondShaft(const BarLayout& layout) {
    const Along along{layout.vertical};
    const int start = IsRectEmpty(&layout.thumb) ? along.From(layout.secondArrow) : along.To(layout.thumb);
    return along.Part(layout.whole, start, along.From(layout.secondArrow));
}

BarPart PartAt(const BarLayout& layout, POINT point) {
    const RECT shafts[] = {FirstShaft(layout), SecondShaft(layout)};
    if (PtInRect(&layout.firstArrow, point)) {
        return BarPart::FirstArrow;
    }
    if (PtInRect(&layout.secondArrow, point)) {
        return BarPart::SecondArrow;
    }
    if (PtInRect(&layout.thumb, point)) {
        return BarPart::Thumb;
    }
    if (IsRectEmpty(&layout.thumb)) {
        return BarPart::None;
    }
    return PtInRect(&shafts[0], point)   ? BarPart::FirstShaft
           : PtInRect(&shafts[1], point) ? BarPart::SecondShaft
                                         : BarPart::None;
}

int PositionAt(const BarLayout& layout, const BarState& state, int* offset) {
    const Along along{layout.vertical};
    const int room = ShaftLength(layout) - (along.To(layout.thumb) - along.From(layout.thumb));
    if (room <= 0) {
        *offset = 0;
        return state.low;
    }
    *offset = std::clamp(*offset, 0, room);
    const std::int64_t range = std::int64_t{LastPosition(state)} - state.low;
    return static_cast<int>(state.low + (range * *offset + room / 2) / room);
}

void ApplyInfo(BarState& state, const SCROLLINFO& info) {
    if (info.fMask & SIF_RANGE) {
        const bool sane =
            info.nMax >= info.nMin && std::int64_t{info.nMax} - info.nMin <= std::numeric_limits<int>::max();
        state.low = sane ? info.nMin : 0;
        state.high = sane ? info.nMax : 0;
    }
    const std::int64_t range = std::int64_t{state.high} - state.low + 1;
    const std::int64_t page = info.fMask & SIF_PAGE ? std::int64_t{info.nPage} : std::int64_t{state.page};
    state.page = static_cast<int>(std::min({page, range, std::int64_t{std::numeric_limits<int>::max()}}));
    const int position = info.fMask & SIF_POS ? info.nPos : state.position;
    state.position = std::clamp(position, state.low, LastPosition(state));
}

bool FillInfo(const BarState& state, SCROLLINFO* info) {
    if (!info || info->cbSize != sizeof *info || !(info->fMask & SIF_ALL)) {
        return false;
    }
    if (info->fMask & SIF_RANGE) {
        info->nMin = state.low;
        info->nMax = state.high;
    }
    if (info->fMask & SIF_PAGE) {
        info->nPage = static_cast<UINT>(state.page);
    }
    if (info->fMask & SIF_POS) {
        info->nPos = state.position;
    }
    if (info->fMask & SIF_TRACKPOS) {
        info->nTrackPos = state.dragging ? state.track : state.position;
    }
    return true;
}

}  // namespace platform::user
