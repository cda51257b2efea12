// Messages that anybody may send: a table of what each one takes.
#include "tests/storm/storm.h"

#include <commctrl.h>

namespace storm {

namespace {

enum class Arg {
    Zero,
    Bool,
    Number,
    Code,    ///< a small number: a scroll code, an index, a size
    Text,    ///< to be read
    Size,    ///< of the buffer
    Buffer,  ///< to be written
    Rect,
    Pair,  ///< two 16-bit numbers: a point, a range
    Window,
    Font,
    Picture,  ///< a bitmap, or none
    Context,
    Key,
    Character,
    Intl,
    Numbers,  ///< an array of ints
    Command,
    ScrollInfo,
    Item,  ///< of a tree
};

struct Kind {
    char const* name;
    UINT message;
    Arg wParam;
    Arg lParam;
};

#define KIND(message, wParam, lParam) \
    { #message, message, Arg::wParam, Arg::lParam }

Kind const kAny[] = {
    KIND(WM_SETTEXT, Zero, Text),        KIND(WM_GETTEXT, Size, Buffer),
    KIND(WM_GETTEXTLENGTH, Zero, Zero),  KIND(WM_SETFONT, Font, Bool),
    KIND(WM_GETFONT, Zero, Zero),        KIND(WM_SETREDRAW, Bool, Zero),
    KIND(WM_ERASEBKGND, Context, Zero),  KIND(WM_TIMER, Code, Zero),
    KIND(WM_TIMER, Number, Zero),        KIND(WM_HSCROLL, Code, Zero),
    KIND(WM_VSCROLL, Code, Zero),        KIND(WM_VSCROLL, Pair, Window),
    KIND(WM_CANCELMODE, Zero, Zero),     KIND(WM_CAPTURECHANGED, Zero, Window),
    KIND(WM_SETFOCUS, Window, Zero),     KIND(WM_KILLFOCUS, Window, Zero),
    KIND(WM_KEYDOWN, Key, Code),         KIND(WM_KEYUP, Key, Code),
    KIND(WM_CHAR, Character, Code),      KIND(WM_SYSKEYDOWN, Key, Number),
    KIND(WM_SYSCHAR, Character, Number), KIND(WM_LBUTTONDOWN, Code, Pair),
    KIND(WM_LBUTTONUP, Code, Pair),      KIND(WM_LBUTTONDBLCLK, Code, Pair),
    KIND(WM_RBUTTONDOWN, Code, Pair),    KIND(WM_RBUTTONUP, Code, Pair),
    KIND(WM_MOUSEMOVE, Code, Pair),      KIND(WM_MOUSEWHEEL, Number, Pair),
    KIND(WM_COMMAND, Command, Window),   KIND(WM_COMMAND, Command, Zero),
    KIND(WM_NEXTDLGCTL, Code, Zero),     KIND(WM_GETDLGCODE, Zero, Zero),
    KIND(WM_SYSCOLORCHANGE, Zero, Zero), KIND(WM_WININICHANGE, Zero, Intl),
    KIND(WM_SIZE, Code, Pair),           KIND(WM_SHOWWINDOW, Bool, Zero),
    KIND(WM_ENABLE, Bool, Zero),         KIND(WM_NCHITTEST, Zero, Pair),
    KIND(WM_NCPAINT, Bool, Zero),        KIND(WM_NCACTIVATE, Bool, Zero),
    KIND(WM_ACTIVATE, Code, Window),     KIND(WM_CONTEXTMENU, Window, Pair),
    KIND(WM_SYSCOMMAND, Number, Pair),   KIND(WM_SETCURSOR, Window, Pair),
    KIND(WM_USER, Number, Number),       KIND(WM_APP, Number, Number),
};

Kind const kEdit[] = {
    KIND(WM_CUT, Zero, Zero),         KIND(WM_COPY, Zero, Zero),        KIND(WM_PASTE, Zero, Zero),
    KIND(WM_CLEAR, Zero, Zero),       KIND(WM_UNDO, Zero, Zero),        KIND(EM_GETSEL, Zero, Zero),
    KIND(EM_SETSEL, Number, Number),  KIND(EM_LIMITTEXT, Number, Zero), KIND(WM_CHAR, Character, Code),
    KIND(EM_SETREADONLY, Bool, Zero),
};

Kind const kList[] = {
    KIND(LB_ADDSTRING, Zero, Text),        KIND(LB_INSERTSTRING, Number, Text),  KIND(LB_RESETCONTENT, Zero, Zero),
    KIND(LB_SETSEL, Bool, Number),         KIND(LB_SETCURSEL, Number, Zero),     KIND(LB_GETSEL, Number, Zero),
    KIND(LB_GETTEXT, Code, Buffer),        KIND(LB_GETTEXTLEN, Number, Zero),    KIND(LB_FINDSTRING, Number, Text),
    KIND(LB_GETSELCOUNT, Zero, Zero),      KIND(LB_GETSELITEMS, Code, Numbers),  KIND(LB_SETCOLUMNWIDTH, Number, Zero),
    KIND(LB_SETTOPINDEX, Number, Zero),    KIND(LB_GETITEMRECT, Number, Rect),   KIND(LB_SELITEMRANGE, Bool, Pair),
    KIND(LB_SETANCHORINDEX, Number, Zero), KIND(LB_SETCARETINDEX, Number, Bool), KIND(LB_GETITEMHEIGHT, Code, Zero),
    KIND(LB_DELETESTRING, Code, Zero),     KIND(LB_SETITEMDATA, Number, Number),
};

Kind const kCombo[] = {
    KIND(CB_ADDSTRING, Zero, Text),    KIND(CB_INSERTSTRING, Number, Text),  KIND(CB_RESETCONTENT, Zero, Zero),
    KIND(CB_SETCURSEL, Number, Zero),  KIND(WM_KEYDOWN, Key, Code),          KIND(CB_GETDROPPEDCONTROLRECT, Zero, Rect),
    KIND(CB_SHOWDROPDOWN, Bool, Zero), KIND(CB_SETITEMDATA, Number, Number),
};

Kind const kButton[] = {
    KIND(BM_GETCHECK, Zero, Zero), KIND(BM_SETCHECK, Code, Zero), KIND(BM_GETSTATE, Zero, Zero),
    KIND(BM_SETSTATE, Bool, Zero), KIND(BM_SETSTYLE, Code, Bool), KIND(BM_CLICK, Zero, Zero),
};

Kind const kBar[] = {
    KIND(SBM_SETPOS, Number, Bool),
    KIND(SBM_GETPOS, Zero, Zero),
    KIND(SBM_SETSCROLLINFO, Bool, ScrollInfo),
};

Kind const kTree[] = {
    KIND(TVM_GETCOUNT, Zero, Zero),    KIND(TVM_DELETEITEM, Zero, Item), KIND(TVM_EXPAND, Code, Item),
    KIND(TVM_GETNEXTITEM, Code, Item), KIND(TVM_SELECTITEM, Code, Item), KIND(TVM_SORTCHILDREN, Bool, Item),
};

#undef KIND

// Far larger than any text of the storm's.
constexpr int kBuffer = 0x20000;
char g_buffer[kBuffer];
RECT g_rect;
int g_numbers[64];
SCROLLINFO g_scroll;

HFONT AnyFont() {
    static int const fonts[] = {SYSTEM_FONT, ANSI_VAR_FONT, ANSI_FIXED_FONT, DEFAULT_GUI_FONT};
    return Die().OneIn(8) ? nullptr : static_cast<HFONT>(GetStockObject(Die().Of(fonts)));
}

HTREEITEM AnyItem(HWND tree) {
    auto item = reinterpret_cast<HTREEITEM>(SendMessageA(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0));
    while (item && !Die().OneIn(4)) {
        WPARAM const step = Die().OneIn(2) ? TVGN_NEXT : TVGN_CHILD;
        item = reinterpret_cast<HTREEITEM>(SendMessageA(tree, TVM_GETNEXTITEM, step, reinterpret_cast<LPARAM>(item)));
    }
    return item;
}

LPARAM Value(Arg arg, HWND window, HDC dc) {
    switch (arg) {
        case Arg::Zero:
            return 0;
        case Arg::Bool:
            return Die().Below(2);
        case Arg::Number:
            return AnyNumber();
        case Arg::Code:
            return Die().From(-1, 16);
        case Arg::Text:
            return reinterpret_cast<LPARAM>(AnyText());
        case Arg::Size:
            return Die().OneIn(3) ? Die().Below(9) : kBuffer;
        case Arg::Buffer:
            return reinterpret_cast<LPARAM>(g_buffer);
        case Arg::Rect:
            g_rect = {Die().From(-9, 40), Die().From(-9, 40), Die().From(0, 200), Die().From(0, 200)};
            return reinterpret_cast<LPARAM>(&g_rect);
        case Arg::Pair:
            return MAKELPARAM(Die().From(-5, 200), Die().From(-5, 100));
        case Arg::Window:
            return reinterpret_cast<LPARAM>(Die().OneIn(4) ? StaleWindow() : AnyWindow());
        case Arg::Font:
            return reinterpret_cast<LPARAM>(AnyFont());
        case Arg::Picture:
            return 0;
        case Arg::Context:
            return reinterpret_cast<LPARAM>(dc);
        case Arg::Key:
            return Die().OneIn(3) ? Die().Below(256) : Die().From(VK_PRIOR, VK_DELETE);
        case Arg::Character:
            return Die().Below(256);
        case Arg::Intl:
            return reinterpret_cast<LPARAM>(Die().OneIn(4) ? "other" : "intl");
        case Arg::Numbers:
            for (int& number : g_numbers) {
                number = Die().Below(300);
            }
            return reinterpret_cast<LPARAM>(g_numbers);
        case Arg::Command:
            return MAKELONG(Die().OneIn(2) ? Die().From(100, 150) : Die().From(1000, 1030), Die().Below(10));
        case Arg::ScrollInfo:
            g_scroll = {sizeof g_scroll, SIF_ALL, AnyNumber(), AnyNumber(), static_cast<UINT>(AnyNumber()),
                        AnyNumber(),     0};
            return reinterpret_cast<LPARAM>(&g_scroll);
        case Arg::Item:
            return reinterpret_cast<LPARAM>(AnyItem(window));
    }
    return 0;
}

bool HasAddress(Kind const& kind) {
    switch (kind.lParam) {
        case Arg::Text:
        case Arg::Buffer:
        case Arg::Rect:
        case Arg::Numbers:
        case Arg::ScrollInfo:
        case Arg::Intl:
        case Arg::Item:
            return true;
        default:
            return kind.wParam == Arg::Context || kind.wParam == Arg::Size;
    }
}

void Send(HWND window, Kind const& kind) {
    char name[32] = "";
    GetClassNameA(window, name, sizeof name);
    HDC const dc = kind.wParam == Arg::Context ? GetDC(window) : nullptr;
    WPARAM const wParam = static_cast<WPARAM>(Value(kind.wParam, window, dc));
    LPARAM const lParam = Value(kind.lParam, window, dc);
    bool const posted = !HasAddress(kind) && Die().OneIn(3);
    Note(" %s %s to %s %d: %lld, %lld", posted ? "post" : "send", kind.name, name, GetDlgCtrlID(window),
         static_cast<long long>(kind.wParam == Arg::Context || kind.wParam == Arg::Window || kind.wParam == Arg::Font
                                    ? 0
                                    : static_cast<int>(wParam)),
         static_cast<long long>(HasAddress(kind) || kind.lParam == Arg::Window ? 0 : lParam));
    if (posted) {
        PostMessageA(window, kind.message, wParam, lParam);
    } else {
        SendMessageA(window, kind.message, wParam, lParam);
    }
    if (dc) {
        ReleaseDC(window, dc);
    }
}

char const* const kEditClasses[] = {"Edit", "Calverin_NumericField"};
char const* const kListClasses[] = {"ListBox", "ComboLBox", "Calverin_CheckList1"};
char const* const kComboClasses[] = {"ComboBox"};
char const* const kButtonClasses[] = {"Button", "Calverin_GraphicButton", "Calverin_BrowseButton"};
char const* const kBarClasses[] = {"ScrollBar"};
char const* const kTreeClasses[] = {"SysTreeView32"};

void SendAny() {
    Send(AnyWindow(), Die().Of(kAny));
}
// A message of a class means something else to a window of another one; addresses in it would, too.
template <std::size_t kinds, std::size_t classes>
void SendTo(char const* const (&names)[classes], Kind const (&table)[kinds]) {
    HWND const window = AnyOf(names);
    bool fits = false;
    for (char const* const name : names) {
        fits = fits || Is(window, name);
    }
    if (fits) {
        Send(window, Die().Of(table));
    }
}
void SendEdit() {
    SendTo(kEditClasses, kEdit);
}
void SendList() {
    SendTo(kListClasses, kList);
}
void SendCombo() {
    SendTo(kComboClasses, kCombo);
}
void SendButton() {
    SendTo(kButtonClasses, kButton);
}
void SendBar() {
    SendTo(kBarClasses, kBar);
}
void SendTree() {
    SendTo(kTreeClasses, kTree);
}

Event const kMessageEvents[] = {
    {"message", 30, SendAny},  {"edit", 8, SendEdit}, {"list", 10, SendList}, {"combo", 8, SendCombo},
    {"button", 4, SendButton}, {"bar", 3, SendBar},   {"tree", 4, SendTree},
};

}  // namespace

std::span<Event const> MessageEvents() {
    return kMessageEvents;
}

}  // namespace storm
