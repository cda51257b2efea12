// The "edit" class: its window procedure.
#include "user/controls/edit/edit.h"

#include <utility>

#include "kernel/memory/probe.h"

namespace platform::user {
namespace {

constexpr char kPasswordCharacter = '*';

LRESULT OnCreate(HWND edit, EditData& data, const CREATESTRUCTA* create) {
    if ((ControlStyle(edit) & (ES_PASSWORD | ES_MULTILINE)) == ES_PASSWORD) {
        data.password = kPasswordCharacter;
    }
    data.text = InStyleCase(edit, create && create->lpszName ? create->lpszName : "");
    LayOut(edit, data);
    return 0;
}

/// With several lines the control wants all keys. Only Tab, and Enter unless the style keeps it, go to the dialog; with Ctrl
/// these two are text.
LRESULT EditDialogCode(HWND edit, EditData& data, LPARAM lParam) {
    constexpr LRESULT kCode = DLGC_WANTCHARS | DLGC_HASSETSEL | DLGC_WANTARROWS;
    const DWORD style = ControlStyle(edit);
    if (!(style & ES_MULTILINE)) {
        return kCode;
    }
    data.inDialog = true;
    const auto* message = reinterpret_cast<const MSG*>(lParam);
    const WPARAM key = message && message->message == WM_KEYDOWN ? message->wParam : 0;
    const bool dialogs = key == VK_TAB || (key == VK_RETURN && !(style & ES_WANTRETURN));
    return dialogs && GetKeyState(VK_CONTROL) >= 0 ? kCode : kCode | DLGC_WANTALLKEYS;
}

void OnSetFont(HWND edit, EditData& data, WPARAM font, bool redraw) {
    data.font = reinterpret_cast<HFONT>(font);
    TakeFontMargin(edit, data);
    LayOut(edit, data);
    if (data.focused && GetFocus() == edit) {
        // The caret is as high as a line.
        CreateCaret(edit, nullptr, GetSystemMetrics(SM_CXBORDER), data.lineHeight);
        PlaceEditCaret(edit, data);
        ShowCaret(edit);
    }
    if (redraw) {
        RedrawEdit(edit);
    }
}

void OnSetFocus(HWND edit, EditData& data) {
    data.focused = true;
    CreateCaret(edit, nullptr, GetSystemMetrics(SM_CXBORDER), data.lineHeight);
    PlaceEditCaret(edit, data);
    ShowCaret(edit);
    if (data.HasSelection()) {
        RedrawEdit(edit);
    }
    NotifyParent(edit, EN_SETFOCUS);
}

void OnKillFocus(HWND edit, EditData& data) {
    data.focused = false;
    data.lead = 0;
    EndEditDrag(edit, data);
    DestroyCaret();
    if (data.HasSelection()) {
        RedrawEdit(edit);
    }
    NotifyParent(edit, EN_KILLFOCUS);
}

void OnScroll(HWND edit, EditData& data, WPARAM wParam) {
    if (!IsMultiLine(edit)) {
        return;
    }
    const auto lines = static_cast<int>(data.lines.size());
    switch (LOWORD(wParam)) {
        case SB_TOP:
            ScrollLines(edit, data, -lines);
            break;
        case SB_BOTTOM:
            ScrollLines(edit, data, lines);
            break;
        case SB_THUMBPOSITION:
        case SB_THUMBTRACK:
            ScrollLines(edit, data, HIWORD(wParam) - static_cast<int>(data.firstLine));
            break;
        case SB_LINEUP:
            ScrollLines(edit, data, -1);
            break;
        case SB_LINEDOWN:
            ScrollLines(edit, data, 1);
            break;
        case SB_PAGEUP:
            ScrollLines(edit, data, -PageLines(data));
            break;
        case SB_PAGEDOWN:
            ScrollLines(edit, data, PageLines(data));
            break;
        default:
            break;
    }
}

LRESULT OnWheel(HWND edit, EditData& data, WPARAM wParam, LPARAM lParam) {
    constexpr int kLinesPerNotch = 3;
    if (!IsMultiLine(edit)) {
        return DefWindowProcA(edit, WM_MOUSEWHEEL, wParam, lParam);
    }
    ScrollLines(edit, data, -GET_WHEEL_DELTA_WPARAM(wParam) * kLinesPerNotch / WHEEL_DELTA);
    return 0;
}

LRESULT OnSetText(HWND edit, EditData& data, LPCSTR text) {
    if (text && kernel::ProbeLength(text) == kernel::kBadText) {
        return Fail(ERROR_NOACCESS, FALSE);
    }
    SetEditText(edit, data, text);
    return TRUE;
}

/// Keys may select; what the application selects itself is not the user's choice.
template <class Action>
void WithOffer(EditData& data, const Action& action) {
    const auto before = std::pair(data.SelectionStart(), data.SelectionEnd());
    action();
    if (before != std::pair(data.SelectionStart(), data.SelectionEnd())) {
        OfferSelection(data);
    }
}

/// A drag by the mouse is over, and what it has selected is the user's choice.
void OnRelease(HWND edit, EditData& data) {
    if (data.drag != EditData::Drag::None) {
        OfferSelection(data);
    }
    EndEditDrag(edit, data);
}

LRESULT OnInput(HWND edit, EditData& data, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_KEYDOWN:
            WithOffer(data, [&] { OnEditKey(edit, data, wParam); });
            return DefWindowProcA(edit, message, wParam, lParam);
        case WM_CHAR:
            WithOffer(data, [&] { OnEditCharacter(edit, data, wParam); });
            return 0;
        case WM_CONTEXTMENU:
            return OnEditContextMenu(edit, data, lParam) ? 0 : DefWindowProcA(edit, message, wParam, lParam);
        case WM_SYSKEYDOWN:
            if (wParam == VK_BACK) {
                SendMessageA(edit, WM_UNDO, 0, 0);
                return 0;
            }
            return DefWindowProcA(edit, message, wParam, lParam);
        case WM_LBUTTONDOWN:
            OnEditPress(edit, data, wParam, lParam);
            return 0;
        case WM_LBUTTONDBLCLK:
            OnEditDoubleClick(edit, data, lParam);
            return 0;
        case WM_MOUSEMOVE:
            OnEditMove(edit, data, lParam);
            return 0;
        case WM_LBUTTONUP:
            OnRelease(edit, data);
            return 0;
        case WM_MBUTTONDOWN:
            OnEditMiddlePress(edit, data, lParam);
            return 0;
        case WM_CAPTURECHANGED:
            if (reinterpret_cast<HWND>(lParam) != edit) {
                EndEditDrag(edit, data);
            }
            return 0;
        case WM_TIMER:
            OnEditTimer(edit, data);
            return 0;
        case WM_MOUSEWHEEL:
            return OnWheel(edit, data, wParam, lParam);
        case WM_VSCROLL:
            OnScroll(edit, data, wParam);
            return 0;
        default:
            return DefWindowProcA(edit, message, wParam, lParam);
    }
}

LRESULT Handle(HWND edit, EditData& data, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_NCCREATE:
            return TRUE;
        case WM_CREATE:
            return OnCreate(edit, data, reinterpret_cast<const CREATESTRUCTA*>(lParam));
        case WM_GETTEXT:
            return CopyText(data.text, wParam, reinterpret_cast<char*>(lParam));
        case WM_GETTEXTLENGTH:
            return static_cast<LRESULT>(data.text.size());
        case WM_GETDLGCODE:
            return EditDialogCode(edit, data, lParam);
        case WM_SETFONT:
            OnSetFont(edit, data, wParam, LOWORD(lParam) != 0);
            return 0;
        case WM_SIZE:
            LayOut(edit, data);
            InvalidateRect(edit, nullptr, FALSE);
            PlaceEditCaret(edit, data);
            return 0;
        case WM_PAINT:
            return PaintWith(edit, [&](HDC context, const RECT&) { PaintEdit(edit, data, context); });
        case WM_ENABLE:
            RedrawEdit(edit);
            return 0;
        case WM_SETFOCUS:
            OnSetFocus(edit, data);
            return 0;
        case WM_KILLFOCUS:
            OnKillFocus(edit, data);
            return 0;
        case WM_SETTEXT:
            return OnSetText(edit, data, reinterpret_cast<LPCSTR>(lParam));
        case WM_COPY:
            CopySelection(edit, data);
            return 0;
        case WM_CUT:
            CutSelection(edit, data);
            return 0;
        case WM_PASTE:
            PasteText(edit, data);
            return 0;
        case WM_CLEAR:
            RemoveText(edit, data, data.SelectionStart(), data.SelectionEnd());
            return 0;
        case WM_UNDO:
            return UndoEdit(edit, data) || !IsMultiLine(edit);
        default:
            if (message >= EM_GETSEL && message <= EM_GETLIMITTEXT) {
                return OnEditQuery(edit, data, message, wParam, lParam);
            }
            return OnInput(edit, data, message, wParam, lParam);
    }
}

}  // namespace

LRESULT CALLBACK EditProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) try {
    return AnswerAs<EditData>(window, message, wParam, lParam, Handle);
} catch (const std::bad_alloc&) {
    return 0;
}

}  // namespace platform::user
