// What a combo box is made of, edit control and list, and the focus that they share.
#include <algorithm>

#include "user/controls/combobox/combo.h"

namespace platform::user {

void GainFocus(ComboData& combo) {
    if (combo.focused)
        return;
    combo.focused = true;
    if (!combo.edit)
        RedrawCombo(combo);
}

void LoseFocus(ComboData& combo, HWND to) {
    if (!combo.focused || to == combo.window || (to && (to == combo.edit || to == combo.list)))
        return;
    CloseUp(combo, false);
    combo.focused = false;
    RedrawCombo(combo);
    NotifyCombo(combo, CBN_KILLFOCUS);
}

LRESULT ComboDialogCode(const ComboData& combo, LPARAM lParam) {
    const auto* message = reinterpret_cast<const MSG*>(lParam);
    const bool closes = combo.dropped && message && message->message == WM_KEYDOWN &&
                        (message->wParam == VK_RETURN || message->wParam == VK_ESCAPE);
    return DLGC_WANTARROWS | DLGC_WANTCHARS | (closes ? DLGC_WANTMESSAGE : 0);
}

namespace {

constexpr LONG_PTR kListId = 1000;
constexpr LONG_PTR kEditId = 1001;

/// The procedure of the edit control: keys that are the combo box's go there.
LRESULT CALLBACK ComboEditProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND owner = GetParent(window);
    const auto combo = owner ? ControlOf<ComboData>(owner) : nullptr;
    if (!combo)
        return EditProcedure(window, message, wParam, lParam);
    switch (message) {
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            return OnComboKey(*combo, message, wParam) ? 0 : EditProcedure(window, message, wParam, lParam);
        case WM_CHAR:
            // They have closed the list, and are no text.
            return wParam == VK_RETURN || wParam == VK_ESCAPE ? 0 : EditProcedure(window, message, wParam, lParam);
        case WM_GETDLGCODE:
            return EditProcedure(window, message, wParam, lParam) | ComboDialogCode(*combo, lParam);
        case WM_SETFOCUS: {
            const LRESULT result = EditProcedure(window, message, wParam, lParam);
            GainFocus(*combo);
            return result;
        }
        case WM_KILLFOCUS: {
            const LRESULT result = EditProcedure(window, message, wParam, lParam);
            LoseFocus(*combo, reinterpret_cast<HWND>(wParam));
            return result;
        }
        case WM_MOUSEWHEEL:
            return SendMessageA(owner, message, wParam, lParam);
        default:
            return EditProcedure(window, message, wParam, lParam);
    }
}

bool MakeEdit(ComboData& combo, const CREATESTRUCTA& create) {
    const DWORD style = combo.Style();
    const DWORD wanted = WS_CHILD | WS_VISIBLE | (style & CBS_AUTOHSCROLL ? ES_AUTOHSCROLL : 0) | (style & WS_DISABLED);
    combo.edit = CreateWindowExA(WS_EX_NOPARENTNOTIFY, "edit", "", wanted, 0, 0, 0, 0, combo.window,
                                 reinterpret_cast<HMENU>(kEditId), create.hInstance, nullptr);
    if (!combo.edit)
        return false;
    SetWindowLongPtrA(combo.edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ComboEditProcedure));
    return true;
}

DWORD ListStyle(const ComboData& combo) {
    const DWORD style = combo.Style();
    DWORD list = LBS_NOTIFY | combo.scrollStyle;
    const std::pair<DWORD, DWORD> same[] = {{CBS_SORT, LBS_SORT},
                                            {CBS_HASSTRINGS, LBS_HASSTRINGS},
                                            {CBS_OWNERDRAWFIXED, LBS_OWNERDRAWFIXED},
                                            {WS_DISABLED, WS_DISABLED}};
    for (const auto& [own, lists] : same)
        list |= style & own ? lists : 0;
    return list;
}

bool MakeList(ComboData& combo, const CREATESTRUCTA& create) {
    const DWORD style = ListStyle(combo);
    if (!combo.Drops()) {
        combo.list =
            CreateWindowExA(WS_EX_NOPARENTNOTIFY | WS_EX_CLIENTEDGE, "ComboLBox", "", style | WS_CHILD | WS_VISIBLE, 0,
                            0, 0, 0, combo.window, reinterpret_cast<HMENU>(kListId), create.hInstance, combo.window);
        return combo.list != nullptr;
    }
    combo.list =
        CreateWindowExA(WS_EX_TOOLWINDOW, "ComboLBox", "", style | WS_POPUP | WS_BORDER, 0, 0, std::max(create.cx, 0),
                        0, GetAncestor(combo.window, GA_ROOT), nullptr, create.hInstance, combo.window);
    if (combo.list)
        SetWindowLongPtrA(combo.list, GWLP_ID, kListId);
    return combo.list != nullptr;
}

/// An owner says how high the field is.
void AskFieldHeight(ComboData& combo) {
    const HWND parent = GetParent(combo.window);
    if (!combo.OwnerDrawn() || !parent)
        return;
    MeasureField(combo);
    MEASUREITEMSTRUCT item{};
    item.CtlType = ODT_COMBOBOX;
    item.CtlID = static_cast<UINT>(GetDlgCtrlID(combo.window));
    item.itemID = static_cast<UINT>(-1);
    item.itemHeight = static_cast<UINT>(combo.fieldHeight);
    SendMessageA(parent, WM_MEASUREITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
    combo.fieldHeight = std::clamp(static_cast<int>(item.itemHeight), 1, 0xFF);
    combo.heightGiven = true;
}

}  // namespace

/// Scroll bars that a combo box is made with are for its list, and its edges are its own.
void TakeFrameStyles(ComboData& combo) {
    const DWORD style = combo.Style();
    combo.scrollStyle = style & (WS_VSCROLL | WS_HSCROLL);
    SetWindowLongA(combo.window, GWL_STYLE, static_cast<LONG>(style & ~(combo.scrollStyle | WS_BORDER)));
    const LONG exStyle = GetWindowLongA(combo.window, GWL_EXSTYLE);
    SetWindowLongA(combo.window, GWL_EXSTYLE, exStyle & ~(WS_EX_CLIENTEDGE | WS_EX_STATICEDGE | WS_EX_WINDOWEDGE));
}

LRESULT OnCreateCombo(ComboData& combo, const CREATESTRUCTA& create) {
    AskFieldHeight(combo);
    if ((combo.Kind() != CBS_DROPDOWNLIST && !MakeEdit(combo, create)) || !MakeList(combo, create))
        return -1;
    MeasureField(combo);
    combo.dropHeight = std::max(0, create.cy - ClosedHeight(combo));
    return 0;
}

}  // namespace platform::user
