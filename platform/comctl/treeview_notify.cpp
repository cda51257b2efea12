// What a tree view tells its parent.
#include "comctl/treeview.h"

namespace platform::comctl {
namespace {

template <class Notification>
LRESULT Send(const TreeView& tree, UINT code, Notification& notification) {
    const HWND window = tree.window;
    notification.hdr.hwndFrom = window;
    notification.hdr.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID(window));
    notification.hdr.code = code;
    return SendMessageA(GetParent(window), WM_NOTIFY, notification.hdr.idFrom, reinterpret_cast<LPARAM>(&notification));
}

}  // namespace

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

LRESULT Notify(const TreeView& tree, UINT code) {
    struct {
        NMHDR hdr;
    } notification{};
    return Send(tree, code, notification);
}

LRESULT NotifyItems(const TreeView& tree, UINT code, UINT action, const TreeItem* before, const TreeItem* after) {
    NMTREEVIEWA notification{};
    notification.action = action;
    notification.itemOld = Describe(before);
    notification.itemNew = Describe(after);
    return Send(tree, code, notification);
}

LRESULT NotifyKey(const TreeView& tree, WORD key) {
    NMTVKEYDOWN notification{};
    notification.wVKey = key;
    return Send(tree, TVN_KEYDOWN, notification);
}

}  // namespace platform::comctl
