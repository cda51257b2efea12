// The folder that the open-file dialog shows, and the way to it.
#include <algorithm>

#include "comdlg/filedialog.h"
#include "shell/listing.h"

namespace platform::comdlg {
namespace {

/// Folders, and the files that fit the patterns, each kind by name.
bool ListFolder(const FileDialog& dialog, const shell::Place& folder, std::vector<Row>& rows) {
    shell::Listing listing;
    if (FAILED(shell::ListItems(folder, SHCONTF_FOLDERS | SHCONTF_NONFOLDERS, listing))) {
        return false;
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
    return true;
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

bool Refresh(FileDialog& dialog) {
    std::vector<Row> rows;
    if (!ListFolder(dialog, dialog.Folder(), rows)) {
        return false;
    }
    dialog.items = std::move(rows);
    ShowItems(dialog);
    return true;
}

bool GoTo(FileDialog& dialog, std::vector<shell::Place> trail) {
    std::vector<Row> rows;
    if (trail.empty() || !trail.back().IsFolder() || !ListFolder(dialog, trail.back(), rows)) {
        return false;
    }
    dialog.trail = std::move(trail);
    dialog.items = std::move(rows);
    ShowItems(dialog);
    FillFolders(dialog);
    EnableWindow(dialog.Control(kUpButton), dialog.trail.size() > 1);
    return true;
}

bool GoUp(FileDialog& dialog) {
    std::vector<shell::Place> trail = dialog.trail;
    trail.pop_back();
    return GoTo(dialog, std::move(trail));
}

bool GoInto(FileDialog& dialog, std::size_t row) {
    std::vector<shell::Place> trail = dialog.trail;
    trail.push_back(dialog.items[row].place);
    return GoTo(dialog, std::move(trail));
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
