// Message boxes: a dialog template laid out around the text, in memory.
#include <algorithm>
#include <iterator>
#include <new>
#include <string>
#include <vector>

#include "user/dialog/dialog.h"
#include "user/model/window.h"

namespace platform::user {
namespace {

constexpr int kTextId = 0xFFFF;
constexpr int kIconId = 20;
constexpr short kButtonWidth = 50;  // dialog units from here on
constexpr short kButtonHeight = 14;
constexpr short kButtonGap = 4;
constexpr short kMargin = 7;
constexpr short kTextGap = 9;  // between the text and the buttons
constexpr short kIconGap = 8;  // between the icon and the text

struct ButtonSpec {
    int id;
    const char* label;
};

struct ButtonSet {
    int count;
    ButtonSpec buttons[3];
};

const ButtonSet kSets[] = {
    {1, {{IDOK, "OK"}}},
    {2, {{IDOK, "OK"}, {IDCANCEL, "Cancel"}}},
    {3, {{IDABORT, "&Abort"}, {IDRETRY, "&Retry"}, {IDIGNORE, "&Ignore"}}},
    {3, {{IDYES, "&Yes"}, {IDNO, "&No"}, {IDCANCEL, "Cancel"}}},
    {2, {{IDYES, "&Yes"}, {IDNO, "&No"}}},
    {2, {{IDRETRY, "&Retry"}, {IDCANCEL, "Cancel"}}},
};
/// What the dialog procedure needs to know of its box.
struct Box {
    int defaultId;
    bool closable;
    HICON icon;
};

HICON IconOf(UINT type) {
    switch (type & MB_ICONMASK) {
        case MB_ICONHAND:
            return LoadIconA(nullptr, IDI_HAND);
        case MB_ICONQUESTION:
            return LoadIconA(nullptr, IDI_QUESTION);
        case MB_ICONEXCLAMATION:
            return LoadIconA(nullptr, IDI_EXCLAMATION);
        case MB_ICONASTERISK:
            return LoadIconA(nullptr, IDI_ASTERISK);
        default:
            return nullptr;
    }
}

bool HasCancel(const ButtonSet& set) {
    return set.count == 1 || std::ranges::any_of(set.buttons, [](const auto& each) { return each.id == IDCANCEL; });
}

INT_PTR CALLBACK BoxProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG: {
            const auto* box = reinterpret_cast<const Box*>(lParam);
            SetWindowLongPtrA(dialog, DWLP_USER, lParam);
            if (box->icon)
                SendDlgItemMessageA(dialog, kIconId, STM_SETICON, reinterpret_cast<WPARAM>(box->icon), 0);
            const HWND button = GetDlgItem(dialog, box->defaultId);
            SendMessageA(dialog, DM_SETDEFID, static_cast<WPARAM>(box->defaultId), 0);
            SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(button), TRUE);
            return FALSE;
        }
        case WM_COMMAND: {
            const auto* box = reinterpret_cast<const Box*>(GetWindowLongPtrA(dialog, DWLP_USER));
            const int id = LOWORD(wParam);
            if (GetDlgItem(dialog, id))
                EndDialog(dialog, id);
            else if (id == IDCANCEL && box && box->closable)
                EndDialog(dialog, GetDlgItem(dialog, IDOK) ? IDOK : IDCANCEL);
            return TRUE;
        }
        default:
            return FALSE;
    }
}

/// Pixels as dialog units, rounded up.
SIZE ToUnits(LONG width, LONG height, SIZE base) {
    return {(width * 4 + base.cx - 1) / base.cx, (height * 8 + base.cy - 1) / base.cy};
}

/// A text's size in dialog units when broken at a width of 5/8 of the screen.
SIZE MeasureText(LPCSTR text, HFONT font, SIZE base) {
    const HDC screen = GetDC(nullptr);
    const HGDIOBJ previous = SelectObject(screen, font);
    RECT rect{0, 0, GetSystemMetrics(SM_CXSCREEN) * 5 / 8, 0};
    DrawTextA(screen, text, -1, &rect, DT_CALCRECT | DT_WORDBREAK | DT_EXPANDTABS | DT_NOPREFIX);
    SelectObject(screen, previous);
    ReleaseDC(nullptr, screen);
    return ToUnits(rect.right, rect.bottom, base);
}

DialogItem MakeItem(const char* className, const char* text, DWORD style, int id, short x, short y, short width,
                    short height) {
    return {style | WS_CHILD | WS_VISIBLE, 0, x, y, width, height, id, className, text};
}

DialogTemplate LayOut(LPCSTR text, LPCSTR caption, const ButtonSet& set, bool hasIcon) {
    DialogTemplate box;
    box.style = WS_POPUP | WS_CAPTION | DS_MODALFRAME | DS_SETFONT | DS_NOIDLEMSG | DS_CENTER;
    if (HasCancel(set))
        box.style |= WS_SYSMENU;
    box.title = caption ? caption : "Error";
    box.hasFont = true;
    box.pointSize = 8;
    box.face = "MS Sans Serif";

    const HFONT font =
        CreateFontA(-MulDiv(8, 96, 72), 0, 0, 0, FW_DONTCARE, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, box.face.c_str());
    const SIZE base = FontBaseUnits(font);
    const SIZE size = MeasureText(text, font, base);
    DeleteObject(font);

    const auto textWidth = static_cast<short>(std::min<LONG>(size.cx, 0x4000));
    const auto textHeight = static_cast<short>(std::min<LONG>(size.cy, 0x4000));
    const SIZE icon = hasIcon ? ToUnits(GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON), base) : SIZE{0, 0};
    const auto iconWidth = static_cast<short>(icon.cx);
    const auto textLeft = static_cast<short>(kMargin + (hasIcon ? iconWidth + kIconGap : 0));
    // A text lower than the icon stands in the middle beside it.
    const auto areaHeight = std::max(textHeight, static_cast<short>(icon.cy));
    const auto textTop = static_cast<short>(kMargin + (areaHeight - textHeight) / 2);
    const auto buttons = static_cast<short>(set.count * kButtonWidth + (set.count - 1) * kButtonGap);
    box.width = static_cast<short>(std::max(textLeft + textWidth, kMargin + buttons) + kMargin);
    const auto buttonTop = static_cast<short>(kMargin + areaHeight + kTextGap);
    box.height = static_cast<short>(buttonTop + kButtonHeight + kMargin);

    if (hasIcon)
        box.items.push_back(MakeItem("static", "", SS_ICON, kIconId, kMargin, kMargin, iconWidth, iconWidth));
    box.items.push_back(MakeItem("static", text, SS_NOPREFIX, kTextId, textLeft, textTop,
                                 static_cast<short>(box.width - textLeft - kMargin), textHeight));
    auto x = static_cast<short>((box.width - buttons) / 2);
    for (int index = 0; index < set.count; ++index) {
        const DWORD group = index == 0 ? WS_GROUP : 0;
        box.items.push_back(MakeItem("button", set.buttons[index].label, BS_PUSHBUTTON | WS_TABSTOP | group,
                                     set.buttons[index].id, x, buttonTop, kButtonWidth, kButtonHeight));
        x = static_cast<short>(x + kButtonWidth + kButtonGap);
    }
    return box;
}

int ShowBox(HWND owner, LPCSTR text, LPCSTR caption, UINT type) {
    const UINT kind = type & MB_TYPEMASK;
    if (kind >= std::size(kSets)) {
        return Fail(ERROR_INVALID_PARAMETER, 0);
    }
    const ButtonSet& set = kSets[kind];
    const int chosen = static_cast<int>((type & MB_DEFMASK) >> 8);
    const Box box{set.buttons[chosen < set.count ? chosen : 0].id, HasCancel(set), IconOf(type)};
    const DialogTemplate layout = LayOut(text ? text : "", caption, set, box.icon != nullptr);
    const INT_PTR result = RunDialog(nullptr, layout, owner, BoxProcedure, reinterpret_cast<LPARAM>(&box));
    return result > 0 ? static_cast<int>(result) : 0;
}

}  // namespace
}  // namespace platform::user

using namespace platform::user;

WINUSERAPI int WINAPI MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type) try {
    return ShowBox(owner, text, caption, type);
} catch (const std::bad_alloc&) {
    return Fail(ERROR_NOT_ENOUGH_MEMORY, 0);
}

// There is no sound device, and a machine without one is silent.
WINUSERAPI BOOL WINAPI MessageBeep(UINT) {
    return TRUE;
}
