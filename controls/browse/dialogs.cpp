// The two dialogs: the system's open-file dialog with the library's hook, and "Browse for Folder".
#include "controls/browse/filelist.h"
#include "core/resource.h"
#include "cvutil32/browse.h"
#include "cvutil32/cstring.h"
#include "cvutil32/treelist.h"
#include "cvutil32/util.h"

#include <commdlg.h>

#include <algorithm>
#include <utility>

namespace browse {

namespace {

constexpr int kTree = 102;

// Known once the first open-file dialog has started.
UINT g_fileOk = 0;

// --- the open-file dialog

BOOL AskForFile(HWND owner, char const* folder, char const* fileName, char* buffer, UINT length, bool several) {
    lstrcpynA(buffer, fileName ? fileName : "", static_cast<int>(length));
    HINSTANCE const module = UTIL_GetModuleInstance();
    CSTRING title;
    title.LoadStringA(module, CVRES_BROWSE_TITLE);
    CSTRING filter;
    filter.LoadStringA(module, CVRES_BROWSE_FILTER);
    filter.Replace('|', '\0', 1);
    OPENFILENAMEA record = {};
    record.lStructSize = OPENFILENAME_SIZE_VERSION_400A;
    record.hwndOwner = owner;
    record.hInstance = module;
    record.lpstrFilter = std::as_const(filter);
    record.lpstrFile = buffer;
    record.nMaxFile = length;
    record.lpstrInitialDir = folder;
    record.lpstrTitle = std::as_const(title);
    record.Flags = OFN_LONGNAMES | OFN_EXPLORER | OFN_ENABLEHOOK | OFN_NOCHANGEDIR | OFN_HIDEREADONLY |
                   (several ? OFN_ALLOWMULTISELECT : 0);
    record.lpfnHook = browse_DialogFileHookProc;
    BOOL const accepted = GetOpenFileNameA(&record);
    if (accepted && several) {
        JoinFileList(buffer, length);
    }
    return accepted;
}

void NameAcceptButton(NMHDR const& notification) {
    if (notification.code == CDN_INITDONE) {
        CSTRING caption;
        caption.LoadStringA(UTIL_GetModuleInstance(), CVRES_BROWSE_ACCEPT);
        SetDlgItemTextA(notification.hwndFrom, IDOK, std::as_const(caption));
    }
}

/// @return 0 to accept, 1 to reject.
UINT_PTR Judge(HWND dialog, OPENFILENAMEA const& record) {
    UINT_PTR const rejected = !(record.Flags & OFN_ALLOWMULTISELECT) && !UTIL_FileExists(record.lpstrFile);
    SetWindowLongPtrA(dialog, DWLP_MSGRESULT, static_cast<LONG_PTR>(rejected));
    return rejected;
}

// --- the folder dialog

INT_PTR Init(HWND dialog, LPARAM buffer) {
    EnableWindow(GetDlgItem(dialog, IDOK), FALSE);
    SetWindowLongPtrA(dialog, DWLP_USER, buffer);
    return TRUE;
}

INT_PTR Command(HWND dialog, WORD id) {
    HWND const tree = GetDlgItem(dialog, kTree);
    char scratch[MAX_PATH];
    switch (id) {
        case IDOK:
            TREELIST_GetFolder(tree, reinterpret_cast<char*>(GetWindowLongPtrA(dialog, DWLP_USER)));
            EndDialog(dialog, IDOK);
            return FALSE;
        case IDCANCEL:
            EndDialog(dialog, IDCANCEL);
            return FALSE;
        case kTree:
            EnableWindow(GetDlgItem(dialog, IDOK), TREELIST_GetFolder(tree, scratch) != 0);
            return TRUE;
        default:
            return FALSE;
    }
}

INT_PTR CALLBACK FolderDialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG:
            return Init(dialog, lParam);
        case WM_COMMAND:
            return Command(dialog, LOWORD(wParam));
        default:
            return FALSE;
    }
}

BOOL AskForFolder(HWND owner, char* buffer, UINT length) {
    *buffer = '\0';
    char folder[MAX_PATH] = "";
    if (DialogBoxParamA(UTIL_GetModuleInstance(), MAKEINTRESOURCEA(CVRES_BROWSE_DIALOG), owner, FolderDialogProcedure,
                        reinterpret_cast<LPARAM>(folder)) != IDOK) {
        return FALSE;
    }
    CharLowerA(folder);
    lstrcpynA(buffer, folder, static_cast<int>(std::min<UINT>(length, MAX_PATH)));
    buffer[length - 1] = '\0';
    return TRUE;
}

}  // namespace

}  // namespace browse

CVAPI(BOOL)
BROWSE_DisplayBrowseDialog(HWND owner, const char* folder, const char* fileName, char* buffer, UINT length,
                           DWORD flags) {
    if (!owner || !IsWindow(owner) || !buffer || length == 0) {
        return FALSE;
    }
    CSTRING start(folder);
    // A root such as C:\ becomes C: too.
    unsigned const end = start.GetStrLen();
    if (end > 0 && start.GetRef(end - 1) == '\\') {
        start.Delete(end - 1, 1);
    }
    if (flags & BROWSE_DLG_FILE) {
        return browse::AskForFile(owner, std::as_const(start), fileName, buffer, length,
                                  (flags & BROWSE_DLG_MULTISELECT) != 0);
    }
    return browse::AskForFolder(owner, buffer, length);
}

CVAPI(UINT_PTR) browse_DialogFileHookProc(HWND dialog, UINT message, WPARAM, LPARAM lParam) {
    switch (message) {
        case WM_NOTIFY:
            browse::NameAcceptButton(*reinterpret_cast<NMHDR const*>(lParam));
            return 0;
        case WM_INITDIALOG:
            browse::g_fileOk = RegisterWindowMessageA(FILEOKSTRINGA);
            return 1;
        default:
            // WM_NULL comes with nothing to judge.
            return message && message == browse::g_fileOk
                       ? browse::Judge(dialog, *reinterpret_cast<OPENFILENAMEA const*>(lParam))
                       : 0;
    }
}
