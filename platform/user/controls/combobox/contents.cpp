// The messages of a combo box; most are the list's, or the edit control's.
#include <algorithm>

#include "user/controls/combobox/combo.h"

namespace platform::user {
namespace {

constexpr int kLargestWidth = 0x7FFF;

LRESULT ToList(const ComboData& combo, UINT message, WPARAM wParam, LPARAM lParam) {
    return SendMessageA(combo.list, message, wParam, lParam);
}

std::string TextOf(HWND window) try {
    const int length = GetWindowTextLengthA(window);
    std::string text(static_cast<std::size_t>(std::max(length, 0)) + 1, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
} catch (const std::bad_alloc&) {
    return {};
}

LRESULT OnSetCurrent(ComboData& combo, WPARAM index) {
    const LRESULT result = ToList(combo, LB_SETCURSEL, index, 0);
    combo.settled = Current(combo);
    // An index that is none takes the selection away.
    if (result == LB_ERR && static_cast<int>(index) != -1)
        return CB_ERR;
    ShowSelection(combo);
    return result;
}

/// The selection may be gone after its item was deleted. What stands in an edit control stays.
LRESULT AfterRemoval(ComboData& combo, LRESULT result, int before) {
    if (before >= 0 && Current(combo) < 0) {
        combo.settled = -1;
        if (!combo.edit)
            RedrawCombo(combo);
    }
    return result;
}

LRESULT OnEditMessage(const ComboData& combo, UINT message, WPARAM wParam, LPARAM lParam) {
    if (!combo.edit)
        return message == CB_LIMITTEXT ? CB_OKAY + 1 : CB_ERR;
    switch (message) {
        case CB_LIMITTEXT:
            SendMessageA(combo.edit, EM_LIMITTEXT, wParam, 0);
            return TRUE;
        case CB_SETEDITSEL: {
            const int start = static_cast<short>(LOWORD(lParam));
            const int end = static_cast<short>(HIWORD(lParam));
            SendMessageA(combo.edit, EM_SETSEL, static_cast<WPARAM>(start), end);
            return TRUE;
        }
        default:
            return SendMessageA(combo.edit, EM_GETSEL, wParam, lParam);
    }
}

LRESULT OnStateMessage(ComboData& combo, UINT message, WPARAM wParam, LPARAM lParam) {
    const int number = static_cast<int>(wParam);
    switch (message) {
        case CB_SHOWDROPDOWN:
            if (wParam)
                DropDown(combo);
            else
                CloseUp(combo, false);
            return TRUE;
        case CB_GETDROPPEDSTATE:
            return combo.dropped || !combo.Drops();
        case CB_GETDROPPEDCONTROLRECT:
            if (!lParam)
                return FALSE;
            *reinterpret_cast<RECT*>(lParam) = DroppedRect(combo);
            return TRUE;
        case CB_SETDROPPEDWIDTH:
            if (number > kLargestWidth)
                return CB_ERR;
            // 0 leaves the width as it is.
            if (number != 0)
                combo.dropWidth = std::max(0, number);
            [[fallthrough]];
        case CB_GETDROPPEDWIDTH: {
            RECT rect{};
            GetWindowRect(combo.window, &rect);
            return combo.Drops() ? std::max<LRESULT>(rect.right - rect.left, combo.dropWidth) : CB_ERR;
        }
        case CB_GETITEMHEIGHT:
            return number == -1 ? combo.fieldHeight : ToList(combo, LB_GETITEMHEIGHT, wParam, 0);
        default:
            return CB_ERR;
    }
}

}  // namespace

int Current(const ComboData& combo) {
    return static_cast<int>(SendMessageA(combo.list, LB_GETCURSEL, 0, 0));
}

std::string ItemText(const ComboData& combo, int index) try {
    if (index < 0)
        return combo.edit ? TextOf(combo.edit) : std::string();
    const auto list = ControlOf<ListData>(combo.list);
    return list && list->HasTexts() && list->items.Has(index) ? list->items[index].text : std::string();
} catch (const std::bad_alloc&) {
    return {};
}

void ShowSelection(ComboData& combo) {
    if (combo.edit) {
        const int index = Current(combo);
        const std::string text = index >= 0 ? ItemText(combo, index) : std::string();
        combo.quiet = true;
        SetWindowTextA(combo.edit, text.c_str());
        combo.quiet = false;
        if (combo.focused)
            SendMessageA(combo.edit, EM_SETSEL, 0, -1);
    } else {
        RedrawCombo(combo);
    }
}

LRESULT OnComboMessage(ComboData& combo, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case CB_GETEDITSEL:
        case CB_LIMITTEXT:
        case CB_SETEDITSEL:
            return OnEditMessage(combo, message, wParam, lParam);
        case CB_ADDSTRING:
            return ToList(combo, LB_ADDSTRING, 0, lParam);
        case CB_INSERTSTRING:
            return ToList(combo, LB_INSERTSTRING, wParam, lParam);
        case CB_DELETESTRING: {
            const int before = Current(combo);
            return AfterRemoval(combo, ToList(combo, LB_DELETESTRING, wParam, 0), before);
        }
        case CB_RESETCONTENT:
            ToList(combo, LB_RESETCONTENT, 0, 0);
            combo.settled = -1;
            ShowSelection(combo);
            return CB_OKAY;
        case CB_GETCOUNT:
            return ToList(combo, LB_GETCOUNT, 0, 0);
        case CB_GETCURSEL:
            return Current(combo);
        case CB_SETCURSEL:
            return OnSetCurrent(combo, wParam);
        case CB_GETLBTEXT:
            return ToList(combo, LB_GETTEXT, wParam, lParam);
        case CB_GETLBTEXTLEN:
            return ToList(combo, LB_GETTEXTLEN, wParam, 0);
        case CB_FINDSTRING:
            return ToList(combo, LB_FINDSTRING, wParam, lParam);
        case CB_FINDSTRINGEXACT:
            return ToList(combo, LB_FINDSTRINGEXACT, wParam, lParam);
        case CB_SELECTSTRING: {
            const LRESULT found = ToList(combo, LB_FINDSTRING, wParam, lParam);
            return found < 0 ? found : OnSetCurrent(combo, static_cast<WPARAM>(found));
        }
        case CB_GETITEMDATA:
            return ToList(combo, LB_GETITEMDATA, wParam, 0);
        case CB_SETITEMDATA:
            return ToList(combo, LB_SETITEMDATA, wParam, lParam);
        default:
            return OnStateMessage(combo, message, wParam, lParam);
    }
}

}  // namespace platform::user
