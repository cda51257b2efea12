// The "listbox" class, and "ComboLBox", the list of a combo box.
#include <algorithm>
#include <cstring>

#include "user/controls/listbox/list.h"
#include "user/dialog/dialog.h"

namespace platform::user {
namespace {

constexpr int kWheelLines = 3;
constexpr int kDefaultTab = 2;  // dialog units

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
    if (!list.OwnerDrawn())
        list.itemHeight = std::max<int>(1, metrics.tmHeight);
    else if (list.itemHeight <= 1)
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
    list.redraw = !(style & LBS_NOREDRAW);
    list.locale = GetUserDefaultLCID();
    list.caret = 0;
    UseFont(list, nullptr);
    if (style & LBS_OWNERDRAWFIXED)
        list.itemHeight = MeasureItem(list, list.combo ? 0 : -1);
    FitHeight(list);
    UpdateBars(list);
    return 0;
}

void OnSize(ListData& list) {
    if (list.Columns())
        list.top -= list.top % RowsOf(list);
    Renew(list);
}

void OnPaint(ListData& list, HDC given) {
    if (given) {
        PaintItems(list, given, ListClient(list));
        return;
    }
    PAINTSTRUCT paint{};
    const HDC context = BeginPaint(list.window, &paint);
    // What is not drawn now is marked again when drawing is switched on.
    if (context && list.redraw)
        PaintItems(list, context, paint.rcPaint);
    EndPaint(list.window, &paint);
}

void OnFocus(ListData& list, bool has) {
    list.focused = has;
    if (list.items.Count() == 0 && list.redraw)
        InvalidateRect(list.window, nullptr, TRUE);
    RedrawItem(list, list.caret, ODA_FOCUS);
    if (!has && list.tracking) {
        EndTracking(list);
        NotifyList(list, LBN_SELCANCEL);
    }
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

LRESULT OnSetTabs(ListData& list, WPARAM count, const int* stops) try {
    if (!(list.Style() & LBS_USETABSTOPS))
        return FALSE;
    int baseX = 0;
    int baseY = 0;
    FontBaseUnits(list.font, baseX, baseY);
    std::vector<int> pixels;
    if (count == 0 || !stops)
        pixels.push_back(MulDiv(kDefaultTab, baseX, 4));
    for (WPARAM i = 0; stops && i < count; ++i)
        pixels.push_back(MulDiv(stops[i], baseX, 4));
    list.tabStops.swap(pixels);
    if (list.redraw)
        InvalidateRect(list.window, nullptr, TRUE);
    return TRUE;
} catch (const std::bad_alloc&) {
    return FALSE;
}

LRESULT OnSetItemHeight(ListData& list, int index, int height) {
    if (height <= 0 || height > 0xFF || (list.Variable() ? !list.items.Has(index) : index != 0))
        return LB_ERR;
    if (list.Variable())
        list.items[index].height = height;
    else
        list.itemHeight = height;
    Renew(list);
    return LB_OKAY;
}

/// The item nearest to a point among those in view, and in the high word whether the point misses it.
LRESULT OnItemFromPoint(const ListData& list, POINT point) {
    const RECT client = ListClient(list);
    const POINT inside{std::clamp<LONG>(point.x, 0, std::max<LONG>(0, client.right - 1)),
                       std::clamp<LONG>(point.y, 0, std::max<LONG>(0, client.bottom - 1))};
    bool outside = false;
    const int found = ItemAt(list, inside, &outside);
    if (found < 0)
        return MAKELRESULT(found, TRUE);
    const RECT item = RectOf(list, found);
    return MAKELRESULT(found, !PtInRect(&client, point) || !PtInRect(&item, point));
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
            return list.Variable() && !list.items.Has(index) ? LB_ERR : HeightOf(list, index);
        case LB_SETITEMHEIGHT:
            return OnSetItemHeight(list, index, static_cast<int>(LOWORD(lParam)));
        case LB_ITEMFROMPOINT:
            return OnItemFromPoint(list, MousePoint(lParam));
        case LB_SETCOLUMNWIDTH:
            list.columnWidth = std::max(1, index);
            Renew(list);
            return LB_OKAY;
        case LB_SETHORIZONTALEXTENT:
            list.extent = std::max(0, index);
            UpdateBars(list);
            return LB_OKAY;
        case LB_GETHORIZONTALEXTENT:
            return list.extent;
        case LB_SETTABSTOPS:
            return OnSetTabs(list, wParam, reinterpret_cast<const int*>(lParam));
        case LB_SETLOCALE: {
            const LCID before = list.locale;
            if (!CompareStringA(static_cast<LCID>(wParam), 0, "a", 1, "a", 1))
                return LB_ERR;
            list.locale = static_cast<LCID>(wParam);
            return static_cast<LRESULT>(before);
        }
        case LB_GETLOCALE:
            return static_cast<LRESULT>(list.locale);
        default:
            return LB_ERR;
    }
}

LRESULT OnListMessage(ListData& list, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case LB_ADDSTRING:
        case LB_INSERTSTRING:
        case LB_DELETESTRING:
        case LB_RESETCONTENT:
        case LB_GETTEXT:
        case LB_GETTEXTLEN:
        case LB_GETCOUNT:
        case LB_SELECTSTRING:
        case LB_FINDSTRING:
        case LB_FINDSTRINGEXACT:
        case LB_GETITEMDATA:
        case LB_SETITEMDATA:
        case LB_SETCOUNT:
        case LB_INITSTORAGE:
            return OnContentsMessage(list, message, wParam, lParam);
        case LB_SELITEMRANGEEX:
        case LB_SETSEL:
        case LB_SETCURSEL:
        case LB_GETSEL:
        case LB_GETCURSEL:
        case LB_GETSELCOUNT:
        case LB_GETSELITEMS:
        case LB_SELITEMRANGE:
        case LB_SETANCHORINDEX:
        case LB_GETANCHORINDEX:
        case LB_SETCARETINDEX:
        case LB_GETCARETINDEX:
            return OnSelectionMessage(list, message, wParam, lParam);
        default:
            return OnLayoutMessage(list, message, wParam, lParam);
    }
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
            OnListButtonUp(list, MousePoint(lParam));
            return 0;
        case WM_MOUSEMOVE:
            OnListMouseMove(list, MousePoint(lParam));
            return 0;
        case WM_MOUSEWHEEL:
            // A combo box hands the wheel on to its list, which must not hand it back.
            return OnWheel(list, wParam) || list.combo ? 0
                                                       : DefWindowProcA(list.window, message, wParam, lParam);
        case WM_CAPTURECHANGED:
            if (list.tracking) {
                EndTracking(list);
                NotifyList(list, LBN_SELCHANGE);
            }
            return 0;
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

LRESULT CALLBACK ListBoxProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto data = ControlOf<ListData>(window);
    if (!data)
        return AnswerWithoutData(window, message, wParam, lParam);
    ListData& list = *data;
    // A procedure in front of this one may have kept WM_NCCREATE to itself.
    list.window = window;
    switch (message) {
        case WM_NCCREATE:
            OnBeforeCreation(list, *reinterpret_cast<const CREATESTRUCTA*>(lParam));
            return DefWindowProcA(window, message, wParam, lParam);
        case WM_CREATE:
            return OnCreate(list);
        case WM_DESTROY:
            RemoveAll(list);
            return 0;
        case WM_MOUSEACTIVATE:
            return list.combo ? MA_NOACTIVATE : DefWindowProcA(window, message, wParam, lParam);
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS | DLGC_WANTCHARS;
        case WM_ERASEBKGND:
            return TRUE;
        case WM_PAINT:
        case WM_PRINTCLIENT:
            OnPaint(list, reinterpret_cast<HDC>(wParam));
            return 0;
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
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(list.font);
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            OnFocus(list, message == WM_SETFOCUS);
            return 0;
        case WM_SYSCOLORCHANGE:
            InvalidateRect(window, nullptr, TRUE);
            return 0;
        default:
            if (message >= LB_ADDSTRING && message <= LB_ITEMFROMPOINT)
                return OnListMessage(list, message, wParam, lParam);
            return OnInput(list, message, wParam, lParam);
    }
}

}  // namespace platform::user
