#include "controls/buddyfr/layout.h"

namespace buddyfr {

namespace {

constexpr int kButtonWidth = 18;
constexpr int kBorder = 2;
constexpr int kComboHeight = 120;

}  // namespace

Layout Arrange(RECT const& field, int buttons, bool combo) {
    LONG const width = buttons * kButtonWidth;
    // The right edge moves to the field's last pixel, so that field and frame touch and end where the field ended.
    LONG const right = field.right - width - 2 * kBorder - 1;
    LONG const height = field.bottom - field.top;
    Layout layout;
    layout.field = {right - field.left + 1, combo ? kComboHeight : height + 1};
    layout.frame = {right + 1, field.top, right + 1 + width + 2 * kBorder, field.bottom + (combo ? 0 : 1)};
    layout.inside = layout.frame;
    InflateRect(&layout.inside, -kBorder, -kBorder);
    return layout;
}

RECT ButtonRect(Layout const& layout, int place) {
    LONG const left = layout.inside.left + place * kButtonWidth;
    return {left, layout.inside.top, left + kButtonWidth, layout.inside.bottom};
}

}  // namespace buddyfr
