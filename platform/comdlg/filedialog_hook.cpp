// The application's hook: a child dialog with the hook as its procedure.
#include <algorithm>
#include <cstring>

#include "comdlg/filedialog.h"
#include "user/dialog/dialog.h"

namespace platform::comdlg {
namespace {

LRESULT CopyOut(const std::string& text, WPARAM size, LPARAM buffer) {
    if (size > 0 && buffer) {
        lstrcpynA(reinterpret_cast<LPSTR>(buffer), text.c_str(), static_cast<int>(size));
    }
    return static_cast<LRESULT>(text.size() + 1);
}

std::string ChosenPath(const FileDialog& dialog) {
    const std::string folder = dialog.Folder().path;
    const std::vector<std::string> names = SplitNames(TextOf(dialog.Control(edt1)));
    if (names.empty() || folder.empty()) {
        return folder;
    }
    return names.size() == 1 ? FullPath(folder, names.front()) : folder + '\\' + JoinNames(names);
}

/// What the hook's window answered: the message result, if its procedure has handled the message.
bool Ask(const FileDialog& dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (!dialog.hook) {
        return false;
    }
    SetWindowLongPtrA(dialog.hook, DWLP_MSGRESULT, 0);
    return SendMessageA(dialog.hook, message, wParam, lParam) != 0;
}

}  // namespace

void CreateHook(FileDialog& dialog) {
    if (!dialog.Has(OFN_ENABLEHOOK) || !dialog.Has(OFN_EXPLORER) || !dialog.record.lpfnHook) {
        return;
    }
    user::DialogTemplate empty;
    empty.style = WS_CHILD | WS_CLIPSIBLINGS | DS_CONTROL | DS_3DLOOK;
    dialog.hook = user::CreateDialogFromTemplate(dialog.record.hInstance, empty, dialog.window,
                                                 reinterpret_cast<DLGPROC>(dialog.record.lpfnHook),
                                                 reinterpret_cast<LPARAM>(&dialog.record), false, nullptr);
}

bool TellHook(FileDialog& dialog, UINT code) {
    OFNOTIFYA notification{};
    notification.hdr = {dialog.window, 0, code};
    notification.lpOFN = &dialog.record;
    return Ask(dialog, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notification));
}

bool HookRefuses(FileDialog& dialog) {
    return Ask(dialog, RegisterWindowMessageA(FILEOKSTRINGA), 0, reinterpret_cast<LPARAM>(&dialog.record));
}

bool AnswerQuery(FileDialog& dialog, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    switch (message) {
        case CDM_GETSPEC:
            result = CopyOut(TextOf(dialog.Control(edt1)), wParam, lParam);
            return true;
        case CDM_GETFILEPATH:
            result = CopyOut(ChosenPath(dialog), wParam, lParam);
            return true;
        case CDM_GETFOLDERPATH:
            result = CopyOut(dialog.Folder().path, wParam, lParam);
            return true;
        case CDM_SETCONTROLTEXT:
            SetDlgItemTextA(dialog.window, static_cast<int>(wParam), reinterpret_cast<LPCSTR>(lParam));
            return true;
        case CDM_HIDECONTROL:
            ShowWindow(dialog.Control(static_cast<int>(wParam)), SW_HIDE);
            return true;
        case CDM_SETDEFEXT:
            dialog.defaultExtension = lParam ? reinterpret_cast<LPCSTR>(lParam) : "";
            return true;
        default:
            return false;
    }
}

}  // namespace platform::comdlg
