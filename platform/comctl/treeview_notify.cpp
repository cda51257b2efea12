// What a tree view tells its parent.
#include "comctl/treeview.h"

namespace platform::comctl {
namespace {

/// Fills in what a notification tells of an item.
TVITEMA Describe(const TreeItem* item) {
    TVITEMA description{};
    if (item) {
        description.mask = TVIF_HANDLE | TVIF_PARAM | TVIF_STATE | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN;
        description.hItem = item->handle;
        description.lParam = item->param;
        description.state = item->state;
        description.stateMask = ~0U;
        description.iImage = item->image;
        description.iSelectedImage = item->selectedImage;
        description.cChildren = item->first ? 1 : item->children;
    }
    return description;
}

}  // namespace

LRESULT NotifyItems(const TreeView& tree, UINT code, UINT action, const TreeItem* before, const TreeItem* after) {
    const HWND window = tree.window;
    NMTREEVIEWA notification{};
    notification.hdr = {window, static_cast<UINT_PTR>(GetDlgCtrlID(window)), code};
    notification.action = action;
    notification.itemOld = Describe(before);
    notification.itemNew = Describe(after);
    return SendMessageA(GetParent(window), WM_NOTIFY, notification.hdr.idFrom, reinterpret_cast<LPARAM>(&notification));
}

}  // namespace platform::comctl
