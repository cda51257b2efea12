// The About box: its texts, and the notice's field that grows with them.
#include "cvutil32/about.h"

#include "cvutil32/cstring.h"
#include "cvutil32/util.h"
#include "dialogs/about/machine.h"
#include "dialogs/about/resource.h"

#include <new>
#include <string>

namespace {

constexpr int kStringSize = 256;
constexpr int kCaptionSize = 1024;  // that wsprintfA writes at most
constexpr char kRegistrationKey[] = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion";

/// What a caller of the box wants to see. A text is a pointer or the identifier of a string.
struct AboutBox {
    HWND parent;
    HINSTANCE instance;
    LPCSTR title;
    LPCSTR product;
    LPCSTR version;
    LPCSTR notice;
    LPCSTR icon;
    DWORD reserved;
};

std::string LoadText(HINSTANCE instance, UINT id) {
    char text[kStringSize] = {};
    LoadStringA(instance, id, text, kStringSize);
    return text;
}

std::string OwnText(UINT id) {
    return LoadText(UTIL_GetModuleInstance(), id);
}

std::string TextOf(HWND window) {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

void SetText(HWND window, HINSTANCE instance, LPCSTR text) {
    if (!IS_INTRESOURCE(text)) {
        SetWindowTextA(window, text);
    } else if (text && instance) {
        SetWindowTextA(window, LoadText(instance, LOWORD(text)).c_str());
    }
}

void SetIcon(HWND dialog, AboutBox const& box) {
    HICON const icon = box.icon ? LoadIconA(box.instance, box.icon) : nullptr;
    if (icon) {
        SendDlgItemMessageA(dialog, CVAB_ICON, STM_SETICON, reinterpret_cast<WPARAM>(icon), 0);
        DestroyIcon(icon);  // the loaded icon is shared, and goes on living in the field
    }
}

void SetCaption(HWND dialog, AboutBox const& box) {
    if (box.title) {
        SetText(dialog, box.instance, box.title);
        return;
    }
    char caption[kCaptionSize + 1] = {};
    wsprintfA(caption, OwnText(CVAB_CAPTION).c_str(), TextOf(GetDlgItem(dialog, CVAB_PRODUCT)).c_str());
    SetWindowTextA(dialog, caption);
}

/// @return the value's text; empty when it is missing.
std::string QueryValue(HKEY key, char const* name) {
    CSTRING value;
    // To read alone: the conversion for writing would make room, and move the text's plain characters only.
    CSTRING const& text = value.RegQueryValueA(key, name);
    return static_cast<char const*>(text);
}

/// Closes a key, also when memory runs out while it is read.
class OpenKey {
  public:
    explicit OpenKey(HKEY key) : key_(key) {}
    ~OpenKey() {
        RegCloseKey(key_);
    }
    OpenKey(OpenKey const&) = delete;
    OpenKey& operator=(OpenKey const&) = delete;

  private:
    HKEY key_;
};

/// @return the lines about the registered user; empty without one.
std::string RegistrationLines() {
    std::string lines;
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, kRegistrationKey, 0, KEY_READ, &key) != ERROR_SUCCESS) {
        return lines;
    }
    OpenKey const open(key);
    std::string const owner = QueryValue(key, "RegisteredOwner");
    if (!owner.empty()) {
        lines = "\n\n" + OwnText(CVAB_LICENSED) + '\n' + owner;
        std::string const organization = QueryValue(key, "RegisteredOrganization");
        if (!organization.empty()) {
            lines += '\n' + organization;
        }
    }
    return lines;
}

std::string MachineLines() {
    SYSTEM_INFO system = {};
    GetSystemInfo(&system);
    MEMORYSTATUS memory = {};
    memory.dwLength = sizeof memory;
    GlobalMemoryStatus(&memory);
    return "\n\n" + OwnText(about::ProcessorString(system.dwProcessorType)) + '\n' +
           about::MemoryLine(OwnText(CVAB_MEMORY).c_str(), memory.dwTotalPhys);
}

void AppendLines(HWND field) {
    SetWindowTextA(field, (TextOf(field) + RegistrationLines() + MachineLines()).c_str());
}

void AddStyle(HWND window, LONG style) {
    SetWindowLongA(window, GWL_STYLE, GetWindowLongA(window, GWL_STYLE) | style);
}

// Texts, not labels: "&" is an ordinary character in them, as it is where they are measured and in the caption.
void ShowAsTexts(HWND dialog) {
    for (int const id : {CVAB_PRODUCT, CVAB_VERSION, CVAB_NOTICE}) {
        AddStyle(GetDlgItem(dialog, id), SS_NOPREFIX);
    }
}

SIZE MeasureText(HWND dialog, HWND field, RECT rect, UINT format) {
    std::string const text = TextOf(field);
    HDC const context = GetDC(dialog);
    auto const font = reinterpret_cast<HFONT>(SendMessageA(field, WM_GETFONT, 0, 0));
    HGDIOBJ const former = font ? SelectObject(context, font) : nullptr;
    DrawTextA(context, text.c_str(), -1, &rect, DT_WORDBREAK | DT_NOCLIP | DT_CALCRECT | DT_NOPREFIX | format);
    if (former) {
        SelectObject(context, former);
    }
    ReleaseDC(dialog, context);
    return {rect.right - rect.left, rect.bottom - rect.top};
}

void GrowBy(HWND window, int height) {
    RECT rect = {};
    GetWindowRect(window, &rect);
    SetWindowPos(window, nullptr, 0, 0, rect.right - rect.left, rect.bottom - rect.top + height,
                 SWP_NOMOVE | SWP_NOZORDER);
}

void FitNotice(HWND dialog) {
    HWND const field = GetDlgItem(dialog, CVAB_NOTICE);
    RECT rect = {};
    GetClientRect(field, &rect);
    int const former = rect.bottom;
    MapWindowPoints(field, dialog, reinterpret_cast<POINT*>(&rect), 2);
    SIZE needed = MeasureText(dialog, field, rect, 0);
    if (needed.cx > rect.right - rect.left) {
        // A word wider than the field, such as a path, goes on in the next line.
        AddStyle(field, SS_EDITCONTROL);
        needed = MeasureText(dialog, field, rect, DT_EDITCONTROL);
    }
    SetWindowPos(field, nullptr, rect.left, rect.top, needed.cx, needed.cy, SWP_NOZORDER);
    // The former height stays as the margin below the text.
    GrowBy(dialog, needed.cy + former);
    GrowBy(GetDlgItem(dialog, CVAB_FRAME), needed.cy + former);
}

void OnInitDialog(HWND dialog, AboutBox const& box) {
    SetIcon(dialog, box);
    ShowAsTexts(dialog);
    SetText(GetDlgItem(dialog, CVAB_VERSION), box.instance, box.version);
    SetText(GetDlgItem(dialog, CVAB_PRODUCT), box.instance, box.product);
    SetText(GetDlgItem(dialog, CVAB_NOTICE), box.instance, box.notice);
    SetCaption(dialog, box);
    AppendLines(GetDlgItem(dialog, CVAB_NOTICE));
    FitNotice(dialog);
    UTIL_CenterPopup(dialog);
    SetFocus(GetDlgItem(dialog, IDOK));
}

INT_PTR CALLBACK AboutDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) try {
    switch (message) {
        case WM_INITDIALOG:
            OnInitDialog(dialog, *reinterpret_cast<AboutBox const*>(lParam));
            break;
        case WM_COMMAND:
            if (HIWORD(wParam) == BN_CLICKED && (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL)) {
                EndDialog(dialog, 0);
            }
            break;
        default:
            break;
    }
    return FALSE;  // OK has the focus
} catch (std::bad_alloc const&) {
    EndDialog(dialog, -1);
    return FALSE;
}

}  // namespace

CVAPI(int)
ABOUT_DisplayAboutBox(HWND parent, HINSTANCE instance, LPCSTR title, LPCSTR product, LPCSTR version, LPCSTR notice,
                      LPCSTR icon) {
    AboutBox const box = {parent, instance, title, product, version, notice, icon, 0};
    HWND const focus = GetFocus();
    INT_PTR const result = DialogBoxParamA(UTIL_GetModuleInstance(), MAKEINTRESOURCEA(CVAB_DIALOG), parent,
                                           AboutDlgProc, reinterpret_cast<LPARAM>(&box));
    if (IsWindow(focus)) {
        SetFocus(focus);
    }
    return static_cast<int>(result);
}
