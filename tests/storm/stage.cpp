// The dialog of the storm, its controls, and the answers of its procedures.
#include "tests/storm/ids.h"
#include "tests/storm/storm.h"

#include <cvutil32.h>

#include <commctrl.h>

#include <array>
#include <string_view>

namespace storm {

namespace {

constexpr int kMostWindows = 400;
constexpr int kVanish = 400;  // one answer in so many

HWND g_dialog = nullptr;
HWND g_page = nullptr;
std::array<HWND, 8> g_stale{};
unsigned g_ended = 0;
bool g_vanishing = false;

struct Found {
    std::array<HWND, kMostWindows> windows;
    int count = 0;
};

BOOL CALLBACK TakeWindow(HWND window, LPARAM found) {
    auto& all = *reinterpret_cast<Found*>(found);
    if (all.count < kMostWindows) {
        all.windows[static_cast<std::size_t>(all.count++)] = window;
    }
    return TRUE;
}

BOOL CALLBACK TakeTree(HWND window, LPARAM found) {
    TakeWindow(window, found);
    EnumChildWindows(window, TakeWindow, found);
    return TRUE;
}

Found AllWindows() {
    Found found;
    EnumThreadWindows(GetCurrentThreadId(), TakeTree, reinterpret_cast<LPARAM>(&found));
    return found;
}

BOOL CALLBACK ReleasePictures(HWND window, LPARAM) {
    if (Is(window, ANIMATE_CLASSNAME)) {
        SendMessageA(window, WM_CLOSE, 0, 0);
    }
    return TRUE;
}

void FillList(HWND list, UINT add) {
    for (int i = 0; i < 12; ++i) {
        SendMessageA(list, add, 0, reinterpret_cast<LPARAM>(AnyText()));
    }
}

void FillTree(HWND tree) {
    TVINSERTSTRUCTA insert = {};
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_CHILDREN;
    for (int i = 0; i < 6; ++i) {
        insert.item.pszText = const_cast<char*>(AnyText());
        insert.item.cChildren = i < 3;
        auto const item =
            reinterpret_cast<HTREEITEM>(SendMessageA(tree, TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insert)));
        if (i < 3) {
            insert.hParent = item;
        }
    }
}

void Draw(DRAWITEMSTRUCT const& item) {
    FillRect(item.hDC, &item.rcItem,
             reinterpret_cast<HBRUSH>(
                 static_cast<INT_PTR>((item.itemState & ODS_SELECTED ? COLOR_HIGHLIGHT : COLOR_WINDOW) + 1)));
    TextOutA(item.hDC, item.rcItem.left, item.rcItem.top, "item", 4);
    if (item.itemState & ODS_FOCUS) {
        DrawFocusRect(item.hDC, &item.rcItem);
    }
}

/// What a window's message says of the control that it comes from.
HWND Sender(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
        case WM_HSCROLL:
        case WM_VSCROLL:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLORSCROLLBAR:
        case WM_VKEYTOITEM:
            return reinterpret_cast<HWND>(lParam);
        case WM_NOTIFY:
            return reinterpret_cast<NMHDR const*>(lParam)->hwndFrom;
        case WM_DRAWITEM:
            return reinterpret_cast<DRAWITEMSTRUCT const*>(lParam)->hwndItem;
        case WM_MEASUREITEM:
        case WM_SETCURSOR:
        case WM_MOUSEACTIVATE:
        case WM_HELP:
        case WM_CONTEXTMENU:
        case WM_ENTERIDLE:
            return GetDlgItem(dialog, static_cast<int>(LOWORD(wParam)));
        default:
            return nullptr;
    }
}

bool IsNotification(UINT message) {
    switch (message) {
        case WM_COMMAND:
        case WM_NOTIFY:
        case WM_HSCROLL:
        case WM_VSCROLL:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLORSCROLLBAR:
        case WM_CTLCOLORDLG:
        case WM_VKEYTOITEM:
        case WM_DRAWITEM:
        case WM_MEASUREITEM:
        case WM_SETCURSOR:
        case WM_MOUSEACTIVATE:
        case WM_HELP:
        case WM_CONTEXTMENU:
        case WM_ENTERIDLE:
            return true;
        default:
            return false;
    }
}

/// What the dialog and its page have in common. @return whether the message was answered.
INT_PTR Answer(HWND dialog, UINT message, LPARAM lParam) {
    switch (message) {
        case WM_DRAWITEM:
            Draw(*reinterpret_cast<DRAWITEMSTRUCT const*>(lParam));
            return TRUE;
        case WM_MEASUREITEM:
            reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)->itemHeight =
                8 + reinterpret_cast<MEASUREITEMSTRUCT const*>(lParam)->itemID % 16;
            return TRUE;
        case WM_DESTROY:
            EnumChildWindows(dialog, ReleasePictures, 0);
            return FALSE;
        case WM_HELP: {
            static DWORD const topics[] = {101, 1001, 1000, 1002, 1014, 1001, 0, 0};
            return UTIL_WinHelp(static_cast<HWND>(reinterpret_cast<HELPINFO const*>(lParam)->hItemHandle),
                                "C:\\storm.hlp", HELP_WM_HELP, reinterpret_cast<ULONG_PTR>(topics));
        }
        case WM_CTLCOLORLISTBOX:
            return reinterpret_cast<INT_PTR>(GetStockObject(WHITE_BRUSH));
        default:
            return FALSE;
    }
}

// What a control tells may be answered by ending something. @returns whether the dialog has gone by it.
bool VanishedInAnswer(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (!IsNotification(message)) {
        return false;
    }
    MaybeVanish(dialog, Sender(dialog, message, wParam, lParam));
    return !IsWindow(dialog);
}

INT_PTR CALLBACK PageProcedure(HWND page, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_INITDIALOG) {
        g_page = page;
        DATECTRL_SetDate(GetDlgItem(page, 1000), nullptr, TRUE);
        TIMECTRL_SetTime(GetDlgItem(page, 1004), nullptr, TRUE);
        NUMFLD_SetLimits(GetDlgItem(page, 1008), 1, 99);
        NUMFLD_SetValue(GetDlgItem(page, 1008), 7);
        FillList(GetDlgItem(page, 1018), CB_ADDSTRING);
        FillList(GetDlgItem(page, 1023), LB_ADDSTRING);
        FillList(GetDlgItem(page, 1024), LB_ADDSTRING);
        return FALSE;
    }
    if (IsNotification(message)) {
        HWND const sender = Sender(page, message, wParam, lParam);
        MaybeVanish(page, sender);
        if (!IsWindow(page)) {
            return TRUE;
        }
    }
    return Answer(page, message, lParam);
}

void Close(HWND dialog, bool modal, INT_PTR result) {
    if (modal) {
        EndDialog(dialog, result);
    } else {
        DestroyWindow(dialog);
    }
}

INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_INITDIALOG) {
        g_dialog = dialog;
        SetWindowLongPtrA(dialog, DWLP_USER, lParam);
        CreateDialogParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDD_PAGE), dialog, PageProcedure, 0);
        for (int id : {111, 112, 113, 114}) {
            FillList(GetDlgItem(dialog, id), LB_ADDSTRING);
        }
        for (int id : {121, 122, 123, 124}) {
            FillList(GetDlgItem(dialog, id), CB_ADDSTRING);
        }
        SendDlgItemMessageA(dialog, 102, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("one\r\ntwo\r\nthree words here\r\n"));
        SCROLLINFO const range = {sizeof range, SIF_RANGE, 0, 50, 0, 0, 0};
        SetScrollInfo(GetDlgItem(dialog, 141), SB_CTL, &range, TRUE);
        FillTree(GetDlgItem(dialog, 143));
        return TRUE;
    }
    if (VanishedInAnswer(dialog, message, wParam, lParam)) {
        return TRUE;
    }
    // The dialog is not given up too easily: that is what the end of a round is for.
    if (message == WM_COMMAND && (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL)) {
        if (Die().OneIn(200)) {
            Close(dialog, GetWindowLongPtrA(dialog, DWLP_USER) != 0, LOWORD(wParam));
        }
        return TRUE;
    }
    if (message == WM_NCDESTROY) {
        g_dialog = nullptr;
    }
    return Answer(dialog, message, lParam);
}

}  // namespace

INT_PTR CALLBACK NestedProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_INITDIALOG) {
        FillList(GetDlgItem(dialog, 1202), LB_ADDSTRING);
        return TRUE;
    }
    if (VanishedInAnswer(dialog, message, wParam, lParam)) {
        return TRUE;
    }
    if (message == WM_COMMAND && (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL)) {
        EndDialog(dialog, LOWORD(wParam));
        return TRUE;
    }
    return FALSE;
}

HWND OpenDialog(bool modal) {
    HINSTANCE const instance = GetModuleHandleA(nullptr);
    if (modal) {
        DialogBoxParamA(instance, MAKEINTRESOURCEA(IDD_STORM), nullptr, DialogProcedure, 1);
        return nullptr;
    }
    return CreateDialogParamA(instance, MAKEINTRESOURCEA(IDD_STORM), nullptr, DialogProcedure, 0);
}

HWND Dialog() {
    return IsWindow(g_dialog) ? g_dialog : nullptr;
}

HWND Page() {
    return IsWindow(g_page) ? g_page : nullptr;
}

bool Is(HWND window, char const* className) {
    char name[64] = "";
    GetClassNameA(window, name, sizeof name);
    return lstrcmpiA(name, className) == 0;
}

HWND AnyWindow() {
    Found const all = AllWindows();
    return all.count ? all.windows[static_cast<std::size_t>(Die().Below(all.count))] : nullptr;
}

HWND AnyOf(std::span<char const* const> classes, bool orOther) {
    if (Die().OneIn(12)) {
        return orOther && Die().OneIn(2) ? AnyWindow() : StaleWindow();
    }
    Found const all = AllWindows();
    Found fit;
    for (int i = 0; i < all.count; ++i) {
        for (char const* const name : classes) {
            if (Is(all.windows[static_cast<std::size_t>(i)], name)) {
                TakeWindow(all.windows[static_cast<std::size_t>(i)], reinterpret_cast<LPARAM>(&fit));
            }
        }
    }
    return fit.count ? fit.windows[static_cast<std::size_t>(Die().Below(fit.count))] : nullptr;
}

HWND StaleWindow() {
    return g_stale[static_cast<std::size_t>(Die().Below(static_cast<int>(g_stale.size())))];
}

HWND TopWindow() {
    HWND const active = GetActiveWindow();
    return active ? active : AnyWindow();
}

void End(HWND window) {
    if (!IsWindow(window)) {
        return;
    }
    ReleasePictures(window, 0);
    EnumChildWindows(window, ReleasePictures, 0);
    DestroyWindow(window);
    g_stale[g_ended++ % g_stale.size()] = window;
}

void EndAll() {
    Found const all = AllWindows();
    for (int i = 0; i < all.count; ++i) {
        if (IsWindow(all.windows[static_cast<std::size_t>(i)])) {
            End(all.windows[static_cast<std::size_t>(i)]);
        }
    }
}

void SetVanishing(bool on) {
    g_vanishing = on;
}

void MaybeVanish(HWND parent, HWND control) {
    if (!g_vanishing || !Die().OneIn(kVanish)) {
        return;
    }
    switch (Die().Below(5)) {
        case 0:
            Note("; its parent ends it");
            End(parent);
            break;
        case 1:
            Note("; the dialog is ended");
            End(g_dialog);
            break;
        case 2:
            Note("; another one is ended");
            End(AnyWindow());
            break;
        default:
            Note("; %d is ended", GetDlgCtrlID(control));
            End(control);
            break;
    }
}

Kept& ByTheRules() {
    static Kept kept{};
    return kept;
}

Chance& Die() {
    static Chance chance(0);
    return chance;
}

char const* AnyText() {
    static char const* const texts[] = {
        "",
        "a",
        "Oslo",
        "&Mnemonic && more",
        "12",
        "99999",
        "-5",
        "C:\\alpha",
        "C:\\a.txt",
        "C:\\alpha\\one;\"C:\\b;c.txt\"+ C:\\beta",
        "two\r\nlines",
        "tab\tbed",
        "M\xFCller \xDF \x80 \xFF",
        "  blanks  ",
        "zebra",
        "Alpha beta gamma delta epsilon zeta eta theta iota kappa lambda mu nu xi omicron",
        ("a-word-without-any-blank-that-is-longer-than-any-field-of-the-dialog-is-wide-"
         "and-then-some-more-of-it-until-it-is-really-too-long-for-everything-there-is")};
    return Die().Of(texts);
}

int AnyNumber() {
    static int const ends[] = {-1, 0, 1, 0x7FFF, 0x8000, 0xFFFF, 0x10000, 0x7FFFFFFF, static_cast<int>(0x80000000), -2};
    return Die().OneIn(6) ? Die().Of(ends) : Die().Below(30);
}

}  // namespace storm
