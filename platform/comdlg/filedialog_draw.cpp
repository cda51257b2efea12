// The rows of the open-file dialog's lists: a small icon and a name.
#include <algorithm>

#include "comctl/imagelist.h"
#include "comdlg/filedialog.h"
#include "gdi/context/device_context.h"
#include "shell/icons.h"

namespace platform::comdlg {
namespace {

constexpr int kIcon = 16;
constexpr int kGap = 3;
constexpr int kLevel = 10;  ///< pixels that a level of the list of folders is indented
constexpr int kLeastName = 60;
constexpr int kUnmixed = -1;

/// colour: the system colour that is mixed in, or kUnmixed.
void DrawPicture(const DRAWITEMSTRUCT& item, shell::Picture picture, int x, int y, int colour) {
    const int index = static_cast<int>(picture);
    if (colour == kUnmixed) {
        ImageList_Draw(shell::SmallIcons(), index, item.hDC, x, y, ILD_TRANSPARENT);
    } else {
        comctl::DrawBlended(shell::SmallIcons(), index, item.hDC, x, y, GetSysColor(colour));
    }
}

void DrawUpButton(const DRAWITEMSTRUCT& item) {
    const bool pressed = (item.itemState & ODS_SELECTED) != 0;
    RECT rect = item.rcItem;
    DrawFrameControl(item.hDC, &rect, DFC_BUTTON, DFCS_BUTTONPUSH | (pressed ? DFCS_PUSHED : 0));
    const int x = (rect.left + rect.right - kIcon) / 2 + pressed;
    const int y = (rect.top + rect.bottom - kIcon) / 2 + pressed;
    DrawPicture(item, shell::Picture::FolderUp, x, y, item.itemState & ODS_DISABLED ? COLOR_BTNFACE : kUnmixed);
    if (item.itemState & ODS_FOCUS) {
        InflateRect(&rect, -3, -3);
        DrawFocusRect(item.hDC, &rect);
    }
}

/// A path with the first folders left out that there is no room for ("C:\\...\\three").
std::string Shortened(HDC context, const std::string& path, int room) {
    const std::size_t root = path.find('\\');
    if (root == path.npos || gdi::WidthOf(context, path) <= room) {
        return path;
    }
    const std::string start = path.substr(0, root) + "\\...";
    std::size_t rest = path.find('\\', root + 1);
    while (rest != path.npos && gdi::WidthOf(context, start + path.substr(rest)) > room &&
           path.find('\\', rest + 1) != path.npos) {
        rest = path.find('\\', rest + 1);
    }
    return rest == path.npos ? path : start + path.substr(rest);
}

void DrawName(const DRAWITEMSTRUCT& item, const Row& row, const std::string& name, int indent, bool open) {
    const bool selected = (item.itemState & ODS_SELECTED) != 0;
    const int width = gdi::WidthOf(item.hDC, name);
    FillRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_WINDOW));
    const int y = (item.rcItem.top + item.rcItem.bottom - kIcon) / 2;
    const int x = item.rcItem.left + 2 + indent;
    DrawPicture(item, shell::PictureOf(row.place, open), x, y, selected ? COLOR_HIGHLIGHT : kUnmixed);
    RECT label = item.rcItem;
    label.left = x + kIcon + kGap;
    label.right = std::min<LONG>(label.left + width + 4, item.rcItem.right);
    SetBkColor(item.hDC, GetSysColor(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    SetTextColor(item.hDC, GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    FillRect(item.hDC, &label, GetSysColorBrush(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    RECT text = label;
    InflateRect(&text, -2, 0);
    // A name that is too long for its column shows that there is more of it.
    DrawTextA(item.hDC, name.c_str(), static_cast<int>(name.size()), &text,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    if (item.itemState & ODS_FOCUS) {
        DrawFocusRect(item.hDC, &label);
    }
}

}  // namespace

void MeasureRow(MEASUREITEMSTRUCT& measure) {
    measure.itemHeight = kIcon + 1;
}

void DrawRow(const FileDialog& dialog, const DRAWITEMSTRUCT& item) {
    if (item.CtlID == kUpButton) {
        DrawUpButton(item);
        return;
    }
    const bool folders = item.CtlID == cmb2;
    const std::vector<Row>& rows = folders ? dialog.folders : dialog.items;
    if (item.itemID < rows.size()) {
        const Row& row = rows[item.itemID];
        // In its closed state the list of folders shows no levels, from which one could tell where the folder lies.
        const bool closed = folders && (item.itemState & ODS_COMBOBOXEDIT) != 0;
        const int room = item.rcItem.right - item.rcItem.left - kIcon - kGap - 6;
        DrawName(item, row, closed ? Shortened(item.hDC, PathOrName(row.place), room) : row.name,
                 folders && !closed ? row.depth * kLevel : 0, folders);
    } else {
        // A folder without items shows nothing, also where the focus is.
        FillRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_WINDOW));
    }
}

int ColumnWidth(const FileDialog& dialog) {
    const HWND list = dialog.Control(lst1);
    const HDC context = GetDC(list);
    const HGDIOBJ font = SelectObject(context, reinterpret_cast<HFONT>(SendMessageA(list, WM_GETFONT, 0, 0)));
    std::vector<int> widths{kLeastName};
    for (const Row& row : dialog.items) {
        widths.push_back(gdi::WidthOf(context, row.name));
    }
    SelectObject(context, font);
    ReleaseDC(list, context);
    RECT client{};
    GetClientRect(list, &client);
    std::sort(widths.begin(), widths.end());
    constexpr int kBesides = kIcon + kGap + 12;
    int widest = widths.back() + kBesides;
    const auto rows = static_cast<std::size_t>(std::max<LONG>(client.bottom / (kIcon + 1), 1));
    if (dialog.items.size() > rows) {
        // Of those that take more than a third of the list, one name in ten must not make all columns wide.
        const int most = widths[(widths.size() - 1) * 9 / 10] + kBesides;
        widest = std::min(widest, std::max<int>(most, client.right / 3));
    }
    return std::min<int>(widest, std::max<int>(client.right, kLeastName));
}

}  // namespace platform::comdlg
