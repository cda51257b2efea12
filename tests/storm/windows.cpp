// What happens to windows: they move, change, come and go.
#include "tests/storm/ids.h"
#include "tests/storm/storm.h"

#include <cvutil32.h>

namespace storm {

namespace {

void Describe(HWND window) {
    char name[32] = "";
    GetClassNameA(window, name, sizeof name);
    Note(" %s %d", name, GetDlgCtrlID(window));
}

void MoveAny() {
    HWND const window = AnyWindow();
    Describe(window);
    int const width = Die().OneIn(10) ? Die().From(-3, 2) : Die().From(3, 300);
    MoveWindow(window, Die().From(-20, 300), Die().From(-20, 200), width, Die().From(-2, 150), Die().Below(2));
}

void Place() {
    static UINT const flags[] = {SWP_NOMOVE,       SWP_NOSIZE,     SWP_NOZORDER,   SWP_NOACTIVATE,
                                 SWP_FRAMECHANGED, SWP_SHOWWINDOW, SWP_HIDEWINDOW, SWP_NOREDRAW};
    HWND const window = AnyWindow();
    HWND const after = Die().OneIn(2) ? HWND_TOP : Die().OneIn(2) ? HWND_BOTTOM : AnyWindow();
    Describe(window);
    UINT some = 0;
    for (int i = 0; i < 3; ++i) {
        some |= Die().Of(flags);
    }
    Note(" flags %X", some);
    SetWindowPos(window, after, Die().From(-20, 200), Die().From(-20, 200), Die().From(0, 200), Die().From(0, 150),
                 some);
}

void Show() {
    static int const commands[] = {SW_HIDE,           SW_SHOW,     SW_SHOW,    SW_SHOWNORMAL,
                                   SW_SHOWNOACTIVATE, SW_MINIMIZE, SW_MAXIMIZE};
    HWND const window = AnyWindow();
    int const command = Die().Of(commands);
    Describe(window);
    Note(" %d", command);
    ShowWindow(window, command);
}

void Enable() {
    HWND const window = AnyWindow();
    bool const enable = !Die().OneIn(3);
    Describe(window);
    Note(" %d", enable);
    EnableWindow(window, enable);
}

void Focus() {
    HWND const window = Die().OneIn(8) ? nullptr : AnyWindow();
    Describe(window);
    if (Die().OneIn(4)) {
        SetActiveWindow(window);
    } else {
        SetFocus(window);
    }
}

void Capture() {
    HWND const window = AnyWindow();
    Describe(window);
    if (Die().OneIn(2)) {
        SetCapture(window);
    } else {
        ReleaseCapture();
    }
}

void Name() {
    HWND const window = AnyWindow();
    Describe(window);
    SetWindowTextA(window, AnyText());
}

void Draw() {
    HWND const window = AnyWindow();
    Describe(window);
    switch (Die().Below(4)) {
        case 0:
            InvalidateRect(window, nullptr, Die().Below(2));
            break;
        case 1:
            UpdateWindow(window);
            break;
        case 2:
            RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
            break;
        default:
            RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
            break;
    }
}

// The bits that belong to the class; what is made of them is fixed when a window is made, or is not.
void Style() {
    HWND const window = AnyWindow();
    DWORD const bit = DWORD{1} << Die().Below(Die().OneIn(4) ? 28 : 16);
    Describe(window);
    Note(" %lX", static_cast<unsigned long>(bit));
    // Where the data lies follows from these.
    if ((Is(window, "Edit") && bit <= ES_MULTILINE) || Is(window, "ListBox") || Is(window, "ComboBox") ||
        Is(window, "ComboLBox") || Is(window, CKLIST_CLASSNAME) || Is(window, NUMFLD_CLASSNAME)) {
        return;
    }
    SetWindowLongA(window, GWL_STYLE, static_cast<LONG>(static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE)) ^ bit));
}

void Remove() {
    HWND window = AnyWindow();
    // The dialog seldom, and the page: the rest is worth more.
    if ((window == Dialog() || window == Page()) && !Die().OneIn(8)) {
        return;
    }
    Describe(window);
    End(window);
}

struct Making {
    char const* name;
    DWORD style;
};

Making const kMakings[] = {
    {DATECTRL_CLASSNAME, WS_TABSTOP | WS_BORDER},
    {TIMECTRL_CLASSNAME, WS_TABSTOP},
    {NUMFLD_CLASSNAME, WS_TABSTOP | ES_AUTOHSCROLL},
    {SCROLL_CLASSNAME, SCROLL_PREVSIBLING | SCROLL_VERTICAL | SCROLL_ATTACH},
    {SCROLL_CLASSNAME, SCROLL_STANDARD},
    {SCROLL_CLASSNAME, 0},
    {GRBUTTON_CLASSNAME, WS_TABSTOP},
    {BROWSE_CLASSNAME, WS_TABSTOP | BROWSE_AUTOBUDDY | BROWSE_FILEMODE | BROWSE_NOTIFY},
    {BROWSE_CLASSNAME, WS_TABSTOP | BROWSE_AUTOBUDDY | BROWSE_APPEND},
    {BUDDYFR_CLASSNAME, 0},
    {TREELIST_CLASSNAME, WS_TABSTOP},
    {ANIMATE_CLASSNAME, 0},
    {CKLIST_CLASSNAME, WS_VSCROLL | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_MULTIPLESEL | LBS_NOTIFY},
    {"edit", WS_TABSTOP | ES_AUTOHSCROLL},
    {"edit", WS_TABSTOP | ES_MULTILINE | WS_VSCROLL},
    {"combobox", WS_TABSTOP | CBS_DROPDOWN | WS_VSCROLL},
    {"combobox", WS_TABSTOP | CBS_SIMPLE},
    {"listbox", WS_TABSTOP | LBS_NOTIFY | WS_VSCROLL},
    {"button", WS_TABSTOP | BS_AUTOCHECKBOX},
    {"button", WS_TABSTOP | BS_DEFPUSHBUTTON},
    {"static", SS_LEFT},
    {"scrollbar", SBS_VERT},
};

void Make() {
    static int next = 0;
    Making const& making = Die().Of(kMakings);
    // An animation is told to release its pictures by the two that know it.
    bool const inside = lstrcmpA(making.name, ANIMATE_CLASSNAME) == 0 || !Die().OneIn(6);
    HWND const parent = !inside ? AnyWindow() : Die().OneIn(2) ? Page() : Dialog();
    Note(" %s %lX in %d", making.name, static_cast<unsigned long>(making.style), GetDlgCtrlID(parent));
    if (!parent) {
        return;
    }
    DWORD style = making.style;
    if (lstrcmpA(making.name, SCROLL_CLASSNAME) == 0 && (style & SCROLL_ARROWKEYS)) {
        // The data of a hooked neighbour stays behind by the rules of the bar: a block, and a button's bitmaps.
        style &= ByTheRules().hooks ? ~DWORD{0} : ~DWORD{SCROLL_ARROWKEYS};
        ByTheRules().globalBlocks += ByTheRules().hooks ? 2 : 0;
        ByTheRules().gdi += ByTheRules().hooks ? 2 : 0;
    }
    CreateWindowExA(Die().OneIn(3) ? WS_EX_CLIENTEDGE : 0, making.name, AnyText(), WS_CHILD | WS_VISIBLE | style,
                    Die().Below(250), Die().Below(180), Die().From(0, 80), Die().From(0, 60), parent,
                    reinterpret_cast<HMENU>(static_cast<INT_PTR>(IDC_MADE + next++ % 100)), GetModuleHandleA(nullptr),
                    nullptr);
}

void Adopt() {
    HWND const window = AnyWindow();
    HWND const parent = Die().OneIn(2) ? Page() : AnyWindow();
    // Parts of controls stay: what they have to say is for the control.
    if ((GetParent(window) != Dialog() && GetParent(window) != Page()) || Is(window, ANIMATE_CLASSNAME)) {
        return;
    }
    Describe(window);
    Note(" by");
    Describe(parent);
    SetParent(window, parent);
}

Event const kWindowEvents[] = {
    {"move", 6, MoveAny}, {"place", 6, Place},     {"show", 6, Show}, {"enable", 8, Enable},
    {"focus", 6, Focus},  {"capture", 2, Capture}, {"name", 4, Name}, {"draw", 5, Draw},
    {"style", 2, Style},  {"remove", 3, Remove},   {"make", 5, Make}, {"adopt", 1, Adopt},
};

}  // namespace

std::span<Event const> WindowEvents() {
    return kWindowEvents;
}

}  // namespace storm
