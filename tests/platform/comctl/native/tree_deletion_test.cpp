// Items of a tree view that go while the application has wishes of its own.
#include "tests/platform/comctl/tree_view.h"

namespace {

TEST_F(TreeViewTest, WhatIsBelowGoesFirstAndNothingNewComesBelow) {
    int refused = 0;
    answer_ = [&](NMHDR* header) -> LRESULT {
        if (header->code == TVN_DELETEITEMA) {
            refused += Add("new", reinterpret_cast<NMTREEVIEWA*>(header)->itemOld.hItem) == nullptr;
        }
        return 0;
    };
    const HTREEITEM first = Add("1", TVI_ROOT, TVI_LAST, 1);
    const HTREEITEM below = Add("2", first, TVI_LAST, 2);
    Add("3", below, TVI_LAST, 3);
    Add("4", below, TVI_LAST, 4);
    Add("5", first, TVI_LAST, 5);
    Add("6", TVI_ROOT, TVI_LAST, 6);
    Send(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
    std::vector<LPARAM> gone;
    for (const Told& one : ToldOf(TVN_DELETEITEMA)) {
        gone.push_back(one.param);
    }
    EXPECT_EQ((std::vector<LPARAM>{3, 4, 2, 5, 1, 6}), gone);
    EXPECT_EQ(6, refused);
    EXPECT_EQ(0, Send(TVM_GETCOUNT));
}

}  // namespace
