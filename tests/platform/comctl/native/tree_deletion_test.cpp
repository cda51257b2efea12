// Items of a tree view that go while the application has wishes of its own.
#include <windows.h>

#include <commctrl.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

HWND tree;
std::vector<LPARAM> deleted;
int refused;

HTREEITEM Add(HTREEITEM parent, LPARAM param) {
    TVINSERTSTRUCTA insert{};
    insert.hParent = parent;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_PARAM;
    insert.item.lParam = param;
    return reinterpret_cast<HTREEITEM>(SendMessageA(tree, TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insert)));
}

LRESULT CALLBACK ParentProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NOTIFY && reinterpret_cast<const NMHDR*>(lParam)->code == TVN_DELETEITEMA) {
        const auto& notification = *reinterpret_cast<const NMTREEVIEWA*>(lParam);
        deleted.push_back(notification.itemOld.lParam);
        refused += Add(notification.itemOld.hItem, 99) == nullptr;
        return 0;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

TEST(TreeDeletion, WhatIsBelowGoesFirstAndNothingNewComesBelow) {
    InitCommonControls();
    const HWND parent =
        CreateWindowExA(0, "static", "", WS_POPUP | WS_VISIBLE, 20, 20, 200, 200, nullptr, nullptr, nullptr, nullptr);
    SetWindowLongPtrA(parent, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ParentProcedure));
    tree =
        CreateWindowExA(0, WC_TREEVIEWA, "", WS_CHILD | WS_VISIBLE, 0, 0, 200, 200, parent, nullptr, nullptr, nullptr);
    const HTREEITEM first = Add(TVI_ROOT, 1);
    const HTREEITEM below = Add(first, 2);
    Add(below, 3);
    Add(below, 4);
    Add(first, 5);
    Add(TVI_ROOT, 6);
    SendMessageA(tree, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
    EXPECT_EQ((std::vector<LPARAM>{3, 4, 2, 5, 1, 6}), deleted);
    EXPECT_EQ(6, refused);
    EXPECT_EQ(0, SendMessageA(tree, TVM_GETCOUNT, 0, 0));
    DestroyWindow(parent);
}

}  // namespace
