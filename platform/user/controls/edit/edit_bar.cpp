// The vertical bar of an edit control with several lines.
#include "user/controls/edit/edit.h"

namespace platform::user {

void ShowEditBar(HWND edit, const EditData& data) {
    if ((ControlStyle(edit) & (ES_MULTILINE | WS_VSCROLL)) != (ES_MULTILINE | WS_VSCROLL)) {
        return;
    }
    SCROLLINFO info{sizeof info, SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL};
    info.nMax = static_cast<int>(data.lines.size()) - 1;
    info.nPage = static_cast<UINT>(PageLines(data));
    info.nPos = static_cast<int>(data.firstLine);
    SetScrollInfo(edit, SB_VERT, &info, TRUE);
}

}  // namespace platform::user
