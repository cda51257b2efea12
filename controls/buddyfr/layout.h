// Where a buddy frame puts a field, its buttons and itself. Arithmetic only.
#pragma once

#include <windows.h>

namespace buddyfr {

struct Layout {
    SIZE field;
    RECT frame;
    RECT inside;  ///< the frame without its border
};

/// @param field    where the field lies
/// @param buttons  how many there are
/// @param combo    whether the field is a combo box, whose height is that of its open list
Layout Arrange(RECT const& field, int buttons, bool combo);

/// @param place  0 for the button nearest to the field
RECT ButtonRect(Layout const& layout, int place);

}  // namespace buddyfr
