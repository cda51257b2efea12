/// @file tree_view.h
/// A tree view whose parent writes down what it is told.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>
#include <vector>

class TreeViewTest : public ::testing::Test {
  protected:
    /// What the parent was told of an item.
    struct Told {
        UINT code;
        UINT action;
        HTREEITEM before;
        HTREEITEM item;
        LPARAM param;
    };

    void SetUp() override {
        InitCommonControls();
        current_ = this;
        parent_ = CreateWindowExA(0, "static", "", WS_POPUP | WS_VISIBLE, 20, 20, 220, 180, nullptr, nullptr,
                                  GetModuleHandleA(nullptr), nullptr);
        SetWindowLongPtrA(parent_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ParentProcedure));
        tree_ = CreateWindowExA(0, WC_TREEVIEWA, "",
                                WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT, 0, 0, 200, 160,
                                parent_, nullptr, GetModuleHandleA(nullptr), nullptr);
        ASSERT_NE(nullptr, tree_);
    }
    void TearDown() override {
        DestroyWindow(parent_);
        current_ = nullptr;
    }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageA(tree_, message, wParam, lParam);
    }
    HTREEITEM Add(std::string text, HTREEITEM parent = TVI_ROOT, HTREEITEM after = TVI_LAST, LPARAM param = 0,
                  int children = 0) {
        TVINSERTSTRUCTA insert{};
        insert.hParent = parent;
        insert.hInsertAfter = after;
        insert.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_CHILDREN;
        insert.item.pszText = text.data();
        insert.item.lParam = param;
        insert.item.cChildren = children;
        return reinterpret_cast<HTREEITEM>(Send(TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insert)));
    }
    HTREEITEM Next(WPARAM code, HTREEITEM item = nullptr) {
        return reinterpret_cast<HTREEITEM>(Send(TVM_GETNEXTITEM, code, reinterpret_cast<LPARAM>(item)));
    }
    HTREEITEM Caret() {
        return Next(TVGN_CARET);
    }
    std::string Text(HTREEITEM handle) {
        char text[MAX_PATH] = "?";
        TVITEMA item{};
        item.mask = TVIF_TEXT;
        item.hItem = handle;
        item.pszText = text;
        item.cchTextMax = sizeof text;
        return Send(TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item)) ? text : "(none)";
    }
    UINT State(HTREEITEM handle) {
        TVITEMA item{};
        item.mask = TVIF_STATE;
        item.stateMask = 0xFF;
        item.hItem = handle;
        return Send(TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item)) ? item.state : 0;
    }
    std::string Children(HTREEITEM parent) {
        std::string texts;
        for (HTREEITEM item = Next(TVGN_CHILD, parent); item; item = Next(TVGN_NEXT, item)) {
            texts += Text(item) + ' ';
        }
        return texts;
    }
    bool Expand(HTREEITEM item, WPARAM code = TVE_EXPAND) {
        return Send(TVM_EXPAND, code, reinterpret_cast<LPARAM>(item)) != 0;
    }
    void Select(HTREEITEM item) {
        Send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
    }
    void Key(WPARAM key) {
        Send(WM_KEYDOWN, key, 1);
    }
    RECT Rect(HTREEITEM item, bool label) {
        RECT rect{};
        std::memcpy(&rect, &item, sizeof item);  // the message takes the item where it puts the rectangle
        return Send(TVM_GETITEMRECT, label, reinterpret_cast<LPARAM>(&rect)) ? rect : RECT{};
    }
    void Click(POINT at) {
        // Elsewhere the press itself waits for its end, to see whether it becomes a drag: the end is in the queue before it.
        PostMessageA(tree_, WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
        Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
            DispatchMessageA(&message);
        }
    }
    std::vector<Told> ToldOf(UINT code) {
        std::vector<Told> found;
        for (const Told& one : told_) {
            if (one.code == code) {
                found.push_back(one);
            }
        }
        return found;
    }

    HWND parent_ = nullptr;
    HWND tree_ = nullptr;
    std::vector<Told> told_;
    std::function<LRESULT(NMHDR*)> answer_;

  private:
    static LRESULT CALLBACK ParentProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_NOTIFY && current_) {
            auto* header = reinterpret_cast<NMHDR*>(lParam);
            const auto* tree = reinterpret_cast<NMTREEVIEWA*>(lParam);
            switch (header->code) {
                case TVN_SELCHANGEDA:
                case TVN_ITEMEXPANDINGA:
                    current_->told_.push_back(
                        {header->code, tree->action, tree->itemOld.hItem, tree->itemNew.hItem, tree->itemNew.lParam});
                    break;
                case TVN_DELETEITEMA:
                    current_->told_.push_back({header->code, 0, tree->itemOld.hItem, nullptr, tree->itemOld.lParam});
                    break;
                default:
                    break;
            }
            return current_->answer_ ? current_->answer_(header) : 0;
        }
        return DefWindowProcA(window, message, wParam, lParam);
    }
    static inline TreeViewTest* current_ = nullptr;
};
