// The list of files: what is selected, and typing to find.
#include "comdlg/filedialog.h"

namespace platform::comdlg {
namespace {

/// Selects a row and no other, as a key does.
void GoToRow(FileDialog& dialog, int row) {
    const HWND list = dialog.Control(lst1);
    const auto index = static_cast<WPARAM>(row);
    if (dialog.Has(OFN_ALLOWMULTISELECT)) {
        SendMessageA(list, LB_SETSEL, FALSE, -1);
        SendMessageA(list, LB_SETSEL, TRUE, row);
        SendMessageA(list, LB_SETANCHORINDEX, index, 0);
        SendMessageA(list, LB_SETCARETINDEX, index, FALSE);
    } else {
        SendMessageA(list, LB_SETCURSEL, index, 0);
    }
    OnSelection(dialog);
}

/// @returns whether the character belongs to a name that is typed. A blank alone selects the row.
bool OnCharacter(FileDialog& dialog, char character) {
    if (static_cast<unsigned char>(character) < ' ' || (character == ' ' && !dialog.typing.IsUnderWay())) {
        return false;
    }
    const HWND list = dialog.Control(lst1);
    // The first letter finds the first row, as long as none is selected.
    const auto caret = static_cast<int>(SendMessageA(list, LB_GETCARETINDEX, 0, 0));
    const int from = SelectedRows(dialog).empty() ? -1 : caret;
    const int found = dialog.typing.Find(character, from, static_cast<int>(dialog.items.size()),
                                         [&](int row) { return dialog.items[static_cast<std::size_t>(row)].name; });
    if (found >= 0) {
        GoToRow(dialog, found);
    }
    return true;
}

LRESULT CALLBACK ListProcedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam) {
    FileDialog* const dialog = DialogOf(GetParent(list));
    if (!dialog) {
        return DefWindowProcA(list, message, wParam, lParam);
    }
    if (message == WM_CHAR && OnCharacter(*dialog, static_cast<char>(wParam))) {
        return 0;
    }
    if (message == WM_KEYDOWN && wParam == VK_SPACE && dialog->typing.IsUnderWay()) {
        return 0;  // its character goes on with the name
    }
    if (message == WM_KEYDOWN) {
        dialog->typing.OnKey(wParam);
    } else if (message == WM_LBUTTONDOWN) {
        dialog->typing.Forget();
    }
    return CallWindowProcA(dialog->listProcedure, list, message, wParam, lParam);
}

}  // namespace

void SubclassList(FileDialog& dialog) {
    dialog.listProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(dialog.Control(lst1), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ListProcedure)));
}

std::vector<std::size_t> SelectedRows(const FileDialog& dialog) {
    // A hook may have put items of its own into the list, so that there is more to be selected than rows.
    if (dialog.items.empty()) {
        return {};
    }
    const HWND list = dialog.Control(lst1);
    std::vector<int> found(dialog.items.size());
    int count =
        static_cast<int>(SendMessageA(list, LB_GETSELITEMS, found.size(), reinterpret_cast<LPARAM>(found.data())));
    if (count == LB_ERR) {
        // A list for one selection.
        const auto one = static_cast<int>(SendMessageA(list, LB_GETCURSEL, 0, 0));
        found.assign(1, one);
        count = one < 0 ? 0 : 1;
    }
    std::vector<std::size_t> rows;
    for (int i = 0; i < count; ++i) {
        if (static_cast<std::size_t>(found[static_cast<std::size_t>(i)]) < dialog.items.size()) {
            rows.push_back(static_cast<std::size_t>(found[static_cast<std::size_t>(i)]));
        }
    }
    return rows;
}

void OnSelection(FileDialog& dialog) {
    std::vector<std::string> names;
    for (const std::size_t row : SelectedRows(dialog)) {
        if (!dialog.items[row].place.IsFolder()) {
            names.push_back(dialog.items[row].name);
        }
    }
    if (!names.empty()) {
        SetDlgItemTextA(dialog.window, edt1, JoinNames(names).c_str());
    }
    TellHook(dialog, CDN_SELCHANGE);
}

}  // namespace platform::comdlg
