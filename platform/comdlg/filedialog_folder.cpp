// The folder that the open-file dialog shows, and the way to it.
#include <algorithm>

#include "comdlg/filedialog.h"
#include "shell/listing.h"

namespace platform::comdlg {
namespace {

/// Folders, and the files that fit the patterns, each kind by name.
HRESULT ListFolder(const FileDialog& dialog, const shell::Place& folder, std::vector<Row>& rows) {
    shell::Listing listing;
    const HRESULT result = shell::ListItems(folder, SHCONTF_FOLDERS | SHCONTF_NONFOLDERS, listing);
    if (FAILED(result)) {
        return result;
    }
    for (const shell::Listed& listed : listing) {
        auto place = shell::PlaceBelow(folder, listed.AsItem());
        std::string name = place ? shell::DisplayName(*place) : std::string();
        if (place && (place->IsFolder() || Matches(name, dialog.patterns))) {
            rows.push_back({std::move(*place), std::move(name), 0});
        }
    }
    std::stable_sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) {
        const bool first = a.place.IsFolder();
        return first != b.place.IsFolder() ? first
               : a.place.kind != b.place.kind
                   ? a.place.kind < b.place.kind
                   : a.place.kind != shell::PlaceKind::Drive && lstrcmpiA(a.name.c_str(), b.name.c_str()) < 0;
    });
    return S_OK;
}

void ShowItems(FileDialog& dialog) {
    const HWND list = dialog.Control(lst1);
    dialog.typing.Forget();
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    SendMessageA(list, LB_RESETCONTENT, 0, 0);
    SendMessageA(list, LB_SETCOLUMNWIDTH, static_cast<WPARAM>(ColumnWidth(dialog)), 0);
    for (const Row& row : dialog.items) {
        SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row.name.c_str()));
    }
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list, nullptr, TRUE);
}

bool SamePlace(const shell::Place& a, const shell::Place& b) {
    return a.kind == b.kind && a.host == b.host;
}

/// The list of folders shows what stands at the desktop, the drives, and below one of those the way to the folder shown.
void AddFolder(FileDialog& dialog, const shell::Place& place, int depth) {
    dialog.folders.push_back({place, shell::DisplayName(place), depth});
    const auto level = static_cast<std::size_t>(depth);
    const bool onTrail = level < dialog.trail.size() && SamePlace(dialog.trail[level], place);
    shell::Listing children;
    if (place.kind == shell::PlaceKind::Desktop || place.kind == shell::PlaceKind::Computer) {
        shell::ListItems(place, SHCONTF_FOLDERS, children);
    }
    if (children.empty() && onTrail && level + 1 < dialog.trail.size()) {
        AddFolder(dialog, dialog.trail[level + 1], depth + 1);
    }
    for (const shell::Listed& child : children) {
        if (const auto below = shell::PlaceBelow(place, child.AsItem())) {
            AddFolder(dialog, *below, depth + 1);
        }
    }
}

}  // namespace

void FillFolders(FileDialog& dialog) {
    dialog.folders.clear();
    AddFolder(dialog, dialog.trail.front(), 0);
    const HWND combo = dialog.Control(cmb2);
    SendMessageA(combo, CB_RESETCONTENT, 0, 0);
    for (std::size_t i = 0; i < dialog.folders.size(); ++i) {
        SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(dialog.folders[i].name.c_str()));
        if (SamePlace(dialog.folders[i].place, dialog.Folder())) {
            SendMessageA(combo, CB_SETCURSEL, i, 0);
        }
    }
}

HRESULT Refresh(FileDialog& dialog) {
    std::vector<Row> rows;
    const HRESULT result = ListFolder(dialog, dialog.Folder(), rows);
    if (SUCCEEDED(result)) {
        dialog.items = std::move(rows);
        ShowItems(dialog);
    }
    return result;
}

HRESULT GoTo(FileDialog& dialog, std::vector<shell::Place> trail) {
    std::vector<Row> rows;
    const bool isFolder = !trail.empty() && trail.back().IsFolder();
    const HRESULT result = isFolder ? ListFolder(dialog, trail.back(), rows) : kNoFolder;
    if (FAILED(result)) {
        return result;
    }
    dialog.trail = std::move(trail);
    dialog.items = std::move(rows);
    ShowItems(dialog);
    FillFolders(dialog);
    EnableWindow(dialog.Control(kUpButton), dialog.trail.size() > 1);
    TellHook(dialog, CDN_FOLDERCHANGE);
    return S_OK;
}

void TryGoTo(FileDialog& dialog, std::vector<shell::Place> trail) {
    const std::string name = trail.empty() ? std::string() : PathOrName(trail.back());
    const HRESULT result = GoTo(dialog, std::move(trail));
    if (FAILED(result)) {
        FillFolders(dialog);
        TellNotAccessible(dialog, name, result);
    }
}

void GoUp(FileDialog& dialog) {
    if (dialog.trail.size() > 1) {
        TryGoTo(dialog, {dialog.trail.begin(), dialog.trail.end() - 1});
    }
}

std::string PathOrName(const shell::Place& place) {
    return place.kind == shell::PlaceKind::Folder || place.kind == shell::PlaceKind::File ? place.path
                                                                                          : shell::DisplayName(place);
}

HRESULT WhyUnreachable(const std::string& path) {
    for (std::string above = path;;) {
        const std::size_t end = above.find_last_not_of("\\/");
        const std::size_t at = end == above.npos ? above.npos : above.find_last_of("\\/", end);
        if (at == above.npos) {
            return kNoFolder;
        }
        above.resize(at + 1);
        const std::vector<shell::Place> trail = TrailOf(above);
        if (!trail.empty()) {
            shell::Listing unused;
            const HRESULT result = shell::ListItems(trail.back(), SHCONTF_FOLDERS, unused);
            return FAILED(result) ? result : kNoFolder;
        }
    }
}

std::vector<shell::Place> TrailOf(const std::string& path) {
    std::vector<shell::Place> trail{shell::DesktopPlace()};
    const shell::OwnedList list = path.empty() ? nullptr : shell::ParseName(trail.front(), path);
    if (!list) {
        return {};
    }
    for (LPCITEMIDLIST item = list.get(); !shell::IsEnd(item); item = shell::NextItem(item)) {
        trail.push_back(*shell::PlaceBelow(trail.back(), shell::ReadItem(item)));
    }
    return trail;
}

}  // namespace platform::comdlg
