// The application's hook: a child dialog with the hook as its procedure.
#include "comdlg/filedialog.h"
#include "user/dialog/dialog.h"

namespace platform::comdlg {
namespace {

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

}  // namespace platform::comdlg
