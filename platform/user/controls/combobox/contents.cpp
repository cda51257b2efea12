// The messages of a combo box; most are the list's, or the edit control's.
#include <utility>

#include "user/controls/combobox/combo.h"
#include "user/dialog/dialog.h"

namespace platform::user {
namespace {

/// What the list answers as it is asked.
constexpr std::pair<UINT, UINT> kListMessages[] = {
    {CB_ADDSTRING, LB_ADDSTRING},     {CB_INSERTSTRING, LB_INSERTSTRING}, {CB_GETCOUNT, LB_GETCOUNT},
    {CB_GETLBTEXT, LB_GETTEXT},       {CB_GETLBTEXTLEN, LB_GETTEXTLEN},   {CB_FINDSTRINGEXACT, LB_FINDSTRINGEXACT},
    {CB_GETITEMDATA, LB_GETITEMDATA}, {CB_SETITEMDATA, LB_SETITEMDATA}};

LRESULT ToList(const ComboData& combo, UINT message, WPARAM wParam, LPARAM lParam) {
    return SendMessageA(combo.list, message, wParam, lParam);
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

}  // namespace

int Current(const ComboData& combo) {
    return static_cast<int>(SendMessageA(combo.list, LB_GETCURSEL, 0, 0));
}

std::string ItemText(const ComboData& combo, int index) try {
    if (index < 0)
        return combo.edit ? TextOf(combo.edit) : std::string();
    const auto list = ControlOf<ListData>(combo.list);
    return list && list->items.Has(index) ? list->items[index].text : std::string();
} catch (const std::bad_alloc&) {
    return {};
}

LRESULT FindTyped(const ComboData& combo) {
    const std::string text = ItemText(combo, -1);
    return text.empty() ? LB_ERR
                        : ToList(combo, LB_FINDSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text.c_str()));
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
        case CB_DELETESTRING: {
            const bool chosen = Current(combo) >= 0;
            const LRESULT left = ToList(combo, LB_DELETESTRING, wParam, 0);
            // What stands in an edit control stays when its item goes.
            if (chosen && Current(combo) < 0) {
                combo.settled = -1;
                RedrawCombo(combo);
            }
            return left;
        }
        case CB_RESETCONTENT:
            ToList(combo, LB_RESETCONTENT, 0, 0);
            combo.settled = -1;
            ShowSelection(combo);
            return CB_OKAY;
        case CB_GETCURSEL:
            return Current(combo);
        case CB_SETCURSEL:
            return OnSetCurrent(combo, wParam);
        case CB_SHOWDROPDOWN:
            if (wParam)
                DropDown(combo);
            else
                CloseUp(combo, false);
            return TRUE;
        case CB_GETDROPPEDCONTROLRECT:
            if (!lParam)
                return FALSE;
            *reinterpret_cast<RECT*>(lParam) = DroppedRect(combo);
            return TRUE;
        default:
            for (const auto& [own, lists] : kListMessages) {
                if (message == own)
                    return ToList(combo, lists, wParam, lParam);
            }
            return CB_ERR;
    }
}

}  // namespace platform::user
