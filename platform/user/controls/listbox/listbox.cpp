// The "listbox" class, and "ComboLBox", the list of a combo box.
#include <algorithm>
#include <cstring>

#include "user/controls/listbox/list.h"

namespace platform::user {
namespace {

constexpr int kWheelLines = 3;

void Renew(ListData& list) {
    FitHeight(list);
    UpdateBars(list);
    if (list.redraw)
        InvalidateRect(list.window, nullptr, TRUE);
}

void UseFont(ListData& list, HFONT font) {
    list.font = font;
    const HDC context = GetDC(list.window);
    if (!context)
        return;
    const HGDIOBJ before = font ? SelectObject(context, font) : nullptr;
    TEXTMETRICA metrics{};
    GetTextMetricsA(context, &metrics);
    if (before)
        SelectObject(context, before);
    ReleaseDC(list.window, context);
    if (!list.OwnerDrawn() || list.itemHeight <= 1)
        list.itemHeight = std::max<int>(1, metrics.tmHeight);
    if (list.columnWidth == 0)
        list.columnWidth = 15 * std::max<int>(1, metrics.tmAveCharWidth);
}

void OnBeforeCreation(ListData& list, const CREATESTRUCTA& create) {
    char name[16] = "";
    GetClassNameA(list.window, name, sizeof name);
    const auto combo = static_cast<HWND>(create.lpCreateParams);
    if (std::strcmp(name, "ComboLBox") == 0 && combo && IsWindow(combo))
        list.combo = combo;
}

LRESULT OnCreate(ListData& list) {
    const DWORD style = list.Style();
    list.vertical = (style & WS_VSCROLL) != 0;
    list.horizontal = (style & WS_HSCROLL) != 0;
    list.caret = 0;
    UseFont(list, nullptr);
    if (list.OwnerDrawn())
        list.itemHeight = MeasureItem(list);
    FitHeight(list);
    UpdateBars(list);
    return 0;
}

void OnSize(ListData& list) {
    if (list.Columns())
        list.top -= list.top % RowsOf(list);
    Renew(list);
}

void OnFocus(ListData& list, bool has) {
    list.focused = has;
    if (list.items.Count() == 0 && list.redraw)
        InvalidateRect(list.window, nullptr, TRUE);
    RedrawItem(list, list.caret, ODA_FOCUS);
    if (!has && list.tracking)
        EndTracking(list);
    NotifyList(list, has ? LBN_SETFOCUS : LBN_KILLFOCUS);
}

void OnSetRedraw(ListData& list, bool on) {
    const bool before = list.redraw;
    list.redraw = on;
    if (on && !before)
        Renew(list);
}

bool OnWheel(ListData& list, WPARAM wParam) {
    const int turns = GET_WHEEL_DELTA_WPARAM(wParam) / WHEEL_DELTA;
    if (!list.vertical || list.Columns() || turns == 0)
        return false;
    ScrollTo(list, list.top - turns * kWheelLines);
    UpdateWindow(list.window);
    return true;
}

LRESULT OnInput(ListData& list, UINT message, WPARAM wParam, LPARAM lParam) {
    if (list.combo && OnDroppedListInput(list, message, wParam, lParam))
        return 0;
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            OnListButtonDown(list, MousePoint(lParam), wParam, message == WM_LBUTTONDBLCLK);
            return 0;
        case WM_LBUTTONUP:
        case WM_CAPTURECHANGED:
            OnListButtonUp(list);
            return 0;
        case WM_MOUSEMOVE:
            OnListMouseMove(list, MousePoint(lParam));
            return 0;
        case WM_MOUSEWHEEL:
            // A combo box hands the wheel on to its list, which must not hand it back.
            return OnWheel(list, wParam) || list.combo ? 0 : DefWindowProcA(list.window, message, wParam, lParam);
        case WM_TIMER:
            OnListTimer(list);
            return 0;
        case WM_KEYDOWN:
            OnListKey(list, wParam);
            return DefWindowProcA(list.window, message, wParam, lParam);
        case WM_CHAR:
            OnListCharacter(list, wParam);
            return 0;
        case WM_VSCROLL:
        case WM_HSCROLL:
            OnScroll(list, message == WM_VSCROLL, wParam);
            return 0;
        default:
            return DefWindowProcA(list.window, message, wParam, lParam);
    }
}

}  // namespace

ListOwner OwnerOf(const ListData& list) {
    const HWND control = list.combo ? list.combo : list.window;
    return {GetParent(control), control, list.combo ? UINT{ODT_COMBOBOX} : UINT{ODT_LISTBOX},
            static_cast<UINT>(GetDlgCtrlID(control))};
}

LRESULT OnLayoutMessage(ListData& list, UINT message, WPARAM wParam, LPARAM lParam) {
    const int index = static_cast<int>(wParam);
    switch (message) {
        case LB_GETTOPINDEX:
            return list.top;
        case LB_SETTOPINDEX:
            if (!list.items.Has(index))
                return LB_ERR;
            ScrollTo(list, index);
            return LB_OKAY;
        case LB_GETITEMRECT:
            if (!list.items.Has(index) || !lParam)
                return LB_ERR;
            *reinterpret_cast<RECT*>(lParam) = RectOf(list, index);
            return LB_OKAY;
        case LB_GETITEMHEIGHT:
            return list.itemHeight;
        case LB_SETCOLUMNWIDTH:
            list.columnWidth = std::max(1, index);
            Renew(list);
            return LB_OKAY;
        default:
            return LB_ERR;
    }
}

namespace {

LRESULT HandleListBox(HWND window, ListData& list, UINT message, WPARAM wParam, LPARAM lParam) {
    // A procedure in front of this one may have kept WM_NCCREATE to itself.
    list.window = window;
    switch (message) {
        case WM_NCCREATE:
            OnBeforeCreation(list, *reinterpret_cast<const CREATESTRUCTA*>(lParam));
            return DefWindowProcA(window, message, wParam, lParam);
        case WM_CREATE:
            return OnCreate(list);
        case WM_MOUSEACTIVATE:
            return list.combo ? MA_NOACTIVATE : DefWindowProcA(window, message, wParam, lParam);
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS | DLGC_WANTCHARS;
        case WM_PAINT:
            return PaintWith(window, [&](HDC context, const RECT& due) {
                // What is not drawn now is marked again when drawing is switched on.
                if (list.redraw)
                    PaintItems(list, context, due);
            });
        case WM_SIZE:
            OnSize(list);
            return 0;
        case WM_ENABLE:
            InvalidateRect(window, nullptr, TRUE);
            return 0;
        case WM_SETREDRAW:
            OnSetRedraw(list, wParam != 0);
            return 0;
        case WM_SETFONT:
            UseFont(list, reinterpret_cast<HFONT>(wParam));
            Renew(list);
            return 0;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            OnFocus(list, message == WM_SETFOCUS);
            return 0;
        default:
            if (message >= LB_ADDSTRING && message <= LB_FINDSTRINGEXACT)
                return OnContentsMessage(list, message, wParam, lParam);
            return OnInput(list, message, wParam, lParam);
    }
}

}  // namespace

LRESULT CALLBACK ListBoxProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return AnswerAs<ListData>(window, message, wParam, lParam, HandleListBox);
}

}  // namespace platform::user
