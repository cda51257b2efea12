// What the accept button makes of the name field and the list.
#include <algorithm>
#include <utility>

#include "comdlg/filedialog.h"
#include "kernel/files/wildcards.h"
#include "user/dialog/dialog.h"

namespace platform::comdlg {
namespace {

std::string FolderPath(const FileDialog& dialog) {
    return dialog.Folder().path;
}

/// @returns whether a name may be given back; else the user has been told why not.
bool MayGiveBack(const FileDialog& dialog, const std::string& path) {
    const auto why = WhyRefused(path, dialog.Has(OFN_FILEMUSTEXIST));
    if (why) {
        TellRefused(dialog, path, *why);
        return false;
    }
    return true;
}

/// @returns the full paths of a choice.
std::vector<std::string> PathsOf(const Choice& choice) {
    std::vector<std::string> paths;
    for (const std::string& name : choice.names) {
        paths.push_back(FullPath(choice.folder, name));
    }
    return paths;
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
    dialog.interrupted = false;
    const bool refused = TellHook(dialog, CDN_FILEOK) || HookRefuses(dialog);
    const auto state = user::FindDialogState(dialog.window);
    if (!state || state->ended) {
        return;  // the hook has done so, and with its own result
    }
    if (refused) {
        TellRefusedByHook(dialog, PathsOf(choice));
    } else {
        EndDialog(dialog.window, TRUE);
    }
}

void AcceptOne(FileDialog& dialog, const std::string& name) {
    const std::string folder = FolderPath(dialog);
    const bool whole = name.size() >= 2 && name[1] == ':';
    if (folder.empty() && !whole) {
        TellRefused(dialog, name, Refusal::NoFile);
        return;
    }
    const std::string path = FullPath(folder, name);
    std::vector<shell::Place> trail = TrailOf(path);
    if (!trail.empty() && trail.back().IsFolder()) {
        const HRESULT result = GoTo(dialog, std::move(trail));
        if (SUCCEEDED(result)) {
            SetDlgItemTextA(dialog.window, edt1, "");
        } else {
            TellNotAccessible(dialog, path, result);
            SelectName(dialog);
        }
        return;
    }
    if (path.ends_with('\\') || name.ends_with('\\') || name.ends_with('/')) {
        TellRefused(dialog, path, Refusal::NoPath);
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

/// A pattern, behind the folder where it is to be applied: shows what fits it.
void ApplyPattern(FileDialog& dialog, const std::string& typed) {
    const std::size_t at = typed.find_last_of("\\/:");
    const std::size_t begin = at == typed.npos ? 0 : at + 1;
    const std::string former = std::exchange(dialog.patterns, typed.substr(begin));
    const std::string folder =
        begin > 0 ? FullPath(FolderPath(dialog), typed.substr(0, begin)) : PathOrName(dialog.Folder());
    const HRESULT result = begin > 0 ? GoTo(dialog, TrailOf(folder)) : Refresh(dialog);
    if (FAILED(result)) {
        dialog.patterns = former;
        TellNotAccessible(dialog, folder, result);
    } else if (begin > 0) {
        SetDlgItemTextA(dialog.window, edt1, dialog.patterns.c_str());
    }
    SelectName(dialog);
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
    std::vector<shell::Place> trail = dialog.trail;
    trail.push_back(dialog.items[*folder].place);
    const std::string path = PathOrName(trail.back());
    const HRESULT result = GoTo(dialog, std::move(trail));
    if (FAILED(result)) {
        TellNotAccessible(dialog, path, result);
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
        ApplyPattern(dialog, names.front());
    } else if (names.size() == 1) {
        AcceptOne(dialog, names.front());
    } else if (!dialog.Has(OFN_ALLOWMULTISELECT)) {
        TellRefused(dialog, typed, Refusal::BadName);
    } else if (FolderPath(dialog).empty()) {
        TellRefused(dialog, names.front(), Refusal::NoFile);
    } else {
        AcceptSeveral(dialog, names);
    }
}

}  // namespace platform::comdlg
