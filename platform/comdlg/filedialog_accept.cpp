// What the accept button makes of the name field and the list.
#include <algorithm>

#include "comdlg/filedialog.h"
#include "kernel/wildcards.h"

namespace platform::comdlg {
namespace {

std::string TitleOf(const FileDialog& dialog) {
    return TextOf(dialog.window);
}

void Complain(const FileDialog& dialog, const std::string& path, const char* what, UINT kind) {
    MessageBoxA(dialog.window, (path + '\n' + what).c_str(), TitleOf(dialog).c_str(), MB_OK | kind);
    const HWND field = dialog.Control(edt1);
    SetFocus(field);
    SendMessageA(field, EM_SETSEL, 0, -1);
}

std::string FolderPath(const FileDialog& dialog) {
    return dialog.Folder().path;
}

/// A path is split at its last backslash; a drive's root keeps it.
Choice Split(const std::string& path) {
    const std::size_t at = path.rfind('\\');
    return {path.substr(0, at == 2 ? 3 : at), {path.substr(at + 1)}};
}

bool Exists(const std::string& path) {
    return !TrailOf(path).empty();
}

/// @returns whether a name may be given back; else the user has been told why not.
bool MayGiveBack(const FileDialog& dialog, const std::string& path) {
    if (dialog.Has(OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST) && !Exists(Split(path).folder)) {
        Complain(dialog, path, "Path does not exist.\nPlease verify that the correct path was given.",
                 MB_ICONEXCLAMATION);
        return false;
    }
    if (dialog.Has(OFN_FILEMUSTEXIST) && !Exists(path)) {
        Complain(dialog, path, "File not found.\nPlease verify that the correct file name was given.",
                 MB_ICONEXCLAMATION);
        return false;
    }
    return true;
}

void End(FileDialog& dialog, const Choice& choice) {
    if (const std::size_t needed = WriteChoice(dialog.record, choice)) {
        dialog.error = FNERR_BUFFERTOOSMALL;
        if (dialog.record.nMaxFile >= sizeof(WORD)) {
            const auto size = static_cast<WORD>(std::min<std::size_t>(needed, 0xFFFF));
            CopyMemory(dialog.record.lpstrFile, &size, sizeof size);
        }
        EndDialog(dialog.window, FALSE);
        return;
    }
    dialog.record.nFilterIndex = static_cast<DWORD>(SendMessageA(dialog.Control(cmb1), CB_GETCURSEL, 0, 0) + 1);
    if (!HookRefuses(dialog)) {
        EndDialog(dialog.window, TRUE);
    }
}

void AcceptOne(FileDialog& dialog, const std::string& name) {
    const std::string folder = FolderPath(dialog);
    const bool whole = name.size() >= 2 && name[1] == ':';
    if (folder.empty() && !whole) {
        Complain(dialog, name, "File not found.\nPlease verify that the correct file name was given.",
                 MB_ICONEXCLAMATION);
        return;
    }
    const std::string path = FullPath(folder, name);
    std::vector<shell::Place> trail = TrailOf(path);
    if (!trail.empty() && trail.back().IsFolder()) {
        if (GoTo(dialog, std::move(trail))) {
            SetDlgItemTextA(dialog.window, edt1, "");
        } else {
            Complain(dialog, path, "The folder cannot be read.", MB_ICONEXCLAMATION);
        }
        return;
    }
    if (path.ends_with('\\') || name.ends_with('\\') || name.ends_with('/')) {
        Complain(dialog, path, "Path does not exist.\nPlease verify that the correct path was given.",
                 MB_ICONEXCLAMATION);
        return;
    }
    if (MayGiveBack(dialog, path)) {
        End(dialog, Split(path));
    }
}

void AcceptSeveral(FileDialog& dialog, const std::vector<std::string>& names) {
    Choice choice{FolderPath(dialog), {}};
    for (const std::string& name : names) {
        const std::string path = FullPath(choice.folder, name);
        if (!MayGiveBack(dialog, path)) {
            return;
        }
        choice.names.push_back(Split(path).folder == choice.folder ? Split(path).names.front() : path);
    }
    End(dialog, choice);
}

/// A selected folder is opened when the list has the focus. @returns whether there was one.
bool OpenSelectedFolder(FileDialog& dialog) {
    if (GetFocus() != dialog.Control(lst1)) {
        return false;
    }
    const std::vector<std::size_t> rows = SelectedRows(dialog);
    const auto folder =
        std::find_if(rows.begin(), rows.end(), [&](std::size_t row) { return dialog.items[row].place.IsFolder(); });
    if (folder == rows.end()) {
        return false;
    }
    const std::string path = dialog.items[*folder].place.path;
    if (!GoInto(dialog, *folder)) {
        Complain(dialog, path, "The folder cannot be read.", MB_ICONEXCLAMATION);
    } else if (!dialog.items.empty()) {
        SendMessageA(dialog.Control(lst1), LB_SETCARETINDEX, 0, FALSE);
    }
    return true;
}

}  // namespace

std::string TextOf(HWND control) {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(control)) + 1, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(control, text.data(), static_cast<int>(text.size()))));
    return text;
}

void Accept(FileDialog& dialog) {
    if (OpenSelectedFolder(dialog)) {
        return;
    }
    const std::string typed = TextOf(dialog.Control(edt1));
    const std::vector<std::string> names = SplitNames(typed);
    if (names.empty()) {
        return;
    }
    if (names.size() == 1 && kernel::HasWildcards(names.front())) {
        dialog.patterns = names.front();
        Refresh(dialog);
        SendMessageA(dialog.Control(edt1), EM_SETSEL, 0, -1);
        return;
    }
    if (names.size() == 1 || !dialog.Has(OFN_ALLOWMULTISELECT) || FolderPath(dialog).empty()) {
        AcceptOne(dialog, names.front());
    } else {
        AcceptSeveral(dialog, names);
    }
}

}  // namespace platform::comdlg
