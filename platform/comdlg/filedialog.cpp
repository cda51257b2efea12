// The open-file dialog's window: its controls, and what it does with their messages.
#include "comdlg/filedialog.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>
#include <utility>

#include "kernel/files/hostfile.h"
#include "user/dialog/dialog.h"

namespace platform::comdlg {
namespace {

user::DialogItem Item(const char* className, int id, DWORD style, int x, int y, int width, int height,
                      const char* text = "") {
    user::DialogItem item;
    item.className = className;
    item.id = id;
    item.style = WS_CHILD | WS_VISIBLE | style;
    item.x = static_cast<short>(x);
    item.y = static_cast<short>(y);
    item.width = static_cast<short>(width);
    item.height = static_cast<short>(height);
    item.text = text;
    return item;
}

user::DialogTemplate Template(const OPENFILENAMEA& record) {
    user::DialogTemplate dialog;
    dialog.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN | DS_MODALFRAME | DS_3DLOOK;
    dialog.width = 280;
    dialog.height = 148;
    dialog.title = record.lpstrTitle ? record.lpstrTitle : "Open";
    dialog.hasFont = true;
    dialog.pointSize = 8;
    dialog.face = "MS Sans Serif";
    const DWORD several = record.Flags & OFN_ALLOWMULTISELECT ? LBS_EXTENDEDSEL : 0;
    constexpr DWORD kDrawn = WS_VSCROLL | WS_TABSTOP;
    dialog.items = {
        Item("static", stc4, SS_LEFTNOWORDWRAP | WS_GROUP, 7, 7, 36, 8, "Look &in:"),
        Item("combobox", cmb2, kDrawn | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS, 46, 5, 170, 120),
        Item("button", kUpButton, BS_OWNERDRAW | WS_TABSTOP, 222, 4, 18, 14, "Up One Level"),
        Item("listbox", lst1,
             WS_HSCROLL | WS_TABSTOP | LBS_NOTIFY | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT |
                 LBS_MULTICOLUMN | LBS_WANTKEYBOARDINPUT | several,
             5, 23, 270, 82),
        Item("static", stc3, SS_LEFTNOWORDWRAP, 7, 113, 46, 8, "File &name:"),
        Item("edit", edt1, ES_AUTOHSCROLL | WS_TABSTOP, 54, 111, 155, 12),
        Item("static", stc2, SS_LEFTNOWORDWRAP, 7, 131, 46, 8, "Files of &type:"),
        Item("combobox", cmb1, kDrawn | CBS_DROPDOWNLIST, 54, 129, 155, 80),
        Item("button", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, 222, 110, 50, 14, "&Open"),
        Item("button", IDCANCEL, BS_PUSHBUTTON | WS_TABSTOP, 222, 128, 50, 14, "Cancel"),
    };
    for (user::DialogItem& item : dialog.items) {
        if (item.id == lst1 || item.id == edt1) {
            item.exStyle = WS_EX_CLIENTEDGE;
        }
    }
    return dialog;
}

void FillFilters(FileDialog& dialog) {
    const HWND combo = dialog.Control(cmb1);
    dialog.filters = ReadFilters(dialog.record.lpstrFilter);
    for (const Filter& filter : dialog.filters) {
        SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(filter.name.c_str()));
    }
    EnableWindow(combo, !dialog.filters.empty());
    dialog.patterns = "*.*";
    if (!dialog.filters.empty()) {
        const std::size_t wanted = std::max<std::size_t>(dialog.record.nFilterIndex, 1) - 1;
        const std::size_t index = std::min(wanted, dialog.filters.size() - 1);
        SendMessageA(combo, CB_SETCURSEL, index, 0);
        dialog.patterns = dialog.filters[index].patterns;
    }
}

/// @returns whether the dialog shows a folder now. One that is there and cannot be read is remembered.
bool BeginIn(FileDialog& dialog, const std::string& path) {
    std::vector<shell::Place> trail = TrailOf(path);
    const bool reached = !trail.empty();
    HRESULT result = GoTo(dialog, std::move(trail));
    if (SUCCEEDED(result)) {
        return true;
    }
    result = reached ? result : WhyUnreachable(path);
    if (result != kNoFolder && dialog.unreadable.empty()) {
        dialog.unreadable = path;
        dialog.whyUnreadable = result;
    }
    return false;
}

/// Where the dialog begins: the folder of the name given, the folder asked for, the user's own.
void Begin(FileDialog& dialog) {
    const std::string given = dialog.record.lpstrFile ? dialog.record.lpstrFile : "";
    const char* asked = dialog.record.lpstrInitialDir;
    const char* home = std::getenv("HOME");
    const bool whole = given.size() >= 2 && given[1] == ':';
    const std::size_t at = whole ? given.find_last_of("\\/:") + 1 : 0;
    if (!BeginIn(dialog, given.substr(0, at)) && !BeginIn(dialog, asked ? asked : "") &&
        FAILED(GoTo(dialog, TrailOf(home ? kernel::WindowsPath(home) : "")))) {
        GoTo(dialog, {shell::DesktopPlace()});
    }
    SetDlgItemTextA(dialog.window, edt1, given.c_str() + at);
}

BOOL OnInit(FileDialog& dialog) {
    SendMessageA(dialog.Control(edt1), EM_LIMITTEXT, std::max<DWORD>(dialog.record.nMaxFile, MAX_PATH), 0);
    SubclassList(dialog);
    FillFilters(dialog);
    CreateHook(dialog);
    Begin(dialog);
    TellHook(dialog, CDN_INITDONE);
    SelectName(dialog);
    return FALSE;
}

void OnFolderChosen(FileDialog& dialog) {
    const auto index = static_cast<std::size_t>(SendMessageA(dialog.Control(cmb2), CB_GETCURSEL, 0, 0));
    if (index >= dialog.folders.size()) {
        return;
    }
    // The row and those that it lies in.
    std::vector<shell::Place> trail(static_cast<std::size_t>(dialog.folders[index].depth) + 1);
    int depth = dialog.folders[index].depth;
    for (std::size_t i = index + 1; i-- > 0 && depth >= 0;) {
        if (dialog.folders[i].depth == depth) {
            trail[static_cast<std::size_t>(depth--)] = dialog.folders[i].place;
        }
    }
    TryGoTo(dialog, std::move(trail));
}

void OnFilterChosen(FileDialog& dialog) {
    const auto index = static_cast<std::size_t>(SendMessageA(dialog.Control(cmb1), CB_GETCURSEL, 0, 0));
    if (index < dialog.filters.size()) {
        dialog.patterns = dialog.filters[index].patterns;
        const HRESULT result = Refresh(dialog);
        TellHook(dialog, CDN_TYPECHANGE);
        if (FAILED(result)) {
            TellNotAccessible(dialog, PathOrName(dialog.Folder()), result);
        }
    }
}

void OnCommand(FileDialog& dialog, int id, UINT code) {
    switch (id) {
        case IDOK:
            Accept(dialog);
            break;
        case IDCANCEL:
            EndDialog(dialog.window, FALSE);
            break;
        case kUpButton:
            if (code == BN_CLICKED) {
                GoUp(dialog);
            }
            break;
        case lst1:
            if (code == LBN_SELCHANGE) {
                OnSelection(dialog);
            } else if (code == LBN_DBLCLK) {
                Accept(dialog);
            }
            break;
        case cmb1:
            if (code == CBN_SELCHANGE) {
                OnFilterChosen(dialog);
            }
            break;
        case cmb2:
            if (code == CBN_SELCHANGE) {
                OnFolderChosen(dialog);
            }
            break;
        default:
            break;
    }
}

/// Backspace in the list goes to the folder above. @returns what WM_VKEYTOITEM wants: -1 for the key's own effect.
INT_PTR OnListKey(FileDialog& dialog, WORD key) {
    if (key != VK_BACK) {
        return -1;
    }
    GoUp(dialog);
    return -2;
}

INT_PTR OnMessage(FileDialog& dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG:
            return OnInit(dialog);
        case WM_COMMAND:
            OnCommand(dialog, LOWORD(wParam), HIWORD(wParam));
            return TRUE;
        case WM_DRAWITEM:
            DrawRow(dialog, *reinterpret_cast<DRAWITEMSTRUCT*>(lParam));
            return TRUE;
        case WM_VKEYTOITEM:
            return OnListKey(dialog, LOWORD(wParam));
        case WM_SHOWWINDOW:
            if (wParam && !dialog.unreadable.empty()) {
                PostMessageA(dialog.window, kTellUnreadable, 0, 0);
            }
            return FALSE;
        case CDM_SETCONTROLTEXT:
            SetDlgItemTextA(dialog.window, static_cast<int>(wParam), reinterpret_cast<LPCSTR>(lParam));
            return TRUE;
        case kTellUnreadable:
            TellNotAccessible(dialog, std::exchange(dialog.unreadable, {}), dialog.whyUnreadable);
            return TRUE;
        case WM_ENABLE:
            dialog.interrupted = dialog.interrupted || !wParam;
            return FALSE;
        case WM_ACTIVATE:
            dialog.interrupted = dialog.interrupted || LOWORD(wParam) == WA_INACTIVE;
            return FALSE;
        default:
            return FALSE;
    }
}

INT_PTR CALLBACK FileDialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_MEASUREITEM) {
        // Comes before WM_INITDIALOG.
        MeasureRow(*reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
        return TRUE;
    }
    if (message == WM_INITDIALOG) {
        reinterpret_cast<FileDialog*>(lParam)->window = window;
        SetWindowLongPtrA(window, DWLP_USER, lParam);
    }
    FileDialog* const dialog = DialogOf(window);
    if (!dialog) {
        return FALSE;
    }
    try {
        return OnMessage(*dialog, message, wParam, lParam);
    } catch (const std::bad_alloc&) {
        dialog->error = CDERR_MEMALLOCFAILURE;
        EndDialog(window, FALSE);
        return FALSE;
    }
}

}  // namespace

bool RunFileDialog(FileDialog& dialog) {
    const INT_PTR result = user::RunDialog(dialog.record.hInstance, Template(dialog.record), dialog.record.hwndOwner,
                                           FileDialogProcedure, reinterpret_cast<LPARAM>(&dialog));
    if (result < 0 && dialog.error == 0) {
        dialog.error = CDERR_DIALOGFAILURE;
    }
    return result > 0;
}

}  // namespace platform::comdlg
