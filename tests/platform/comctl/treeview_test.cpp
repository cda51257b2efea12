// The tree view: items, notifications, selection, keyboard and mouse.
#include "tests/platform/comctl/tree_view.h"

#include <algorithm>

namespace {

TEST_F(TreeViewTest, ItemsStandWhereTheyWerePut) {
    const HTREEITEM b = Add("b");
    const HTREEITEM d = Add("d");
    Add("c", TVI_ROOT, b);
    const HTREEITEM child = Add("y", d);
    Add("z", d);
    EXPECT_EQ("b c d ", Children(TVI_ROOT));
    EXPECT_EQ("y z ", Children(d));
    EXPECT_EQ(5, Send(TVM_GETCOUNT));
    EXPECT_EQ(d, Next(TVGN_PARENT, child));
    EXPECT_EQ(nullptr, Next(TVGN_PARENT, d));
    EXPECT_EQ("b", Text(Next(TVGN_ROOT)));
    // Only what is not hidden in a closed item counts as visible.
    EXPECT_EQ(nullptr, Next(TVGN_NEXTVISIBLE, d));
    EXPECT_TRUE(Expand(d));
    EXPECT_EQ(child, Next(TVGN_NEXTVISIBLE, d));
    EXPECT_EQ(d, Next(TVGN_PREVIOUSVISIBLE, child));
}

TEST_F(TreeViewTest, ChildrenMayComeWhenTheItemIsOpened) {
    EXPECT_FALSE(Expand(Add("empty")));
    const HTREEITEM folder = Add("folder", TVI_ROOT, TVI_LAST, 5, 1);
    answer_ = [&](NMHDR* header) -> LRESULT {
        if (header->code == TVN_ITEMEXPANDINGA && !Next(TVGN_CHILD, folder)) {
            Add("child", folder);
        }
        return 0;
    };
    EXPECT_TRUE(Expand(folder));
    ASSERT_EQ(1U, ToldOf(TVN_ITEMEXPANDINGA).size());
    EXPECT_EQ(5, ToldOf(TVN_ITEMEXPANDINGA)[0].param);
    EXPECT_EQ(UINT{TVIS_EXPANDED | TVIS_EXPANDEDONCE}, State(folder) & (TVIS_EXPANDED | TVIS_EXPANDEDONCE));
    // A program that opens it again is not told; the user's own opening is told each time.
    EXPECT_TRUE(Expand(folder, TVE_COLLAPSE));
    EXPECT_TRUE(Expand(folder));
    EXPECT_EQ(1U, ToldOf(TVN_ITEMEXPANDINGA).size());
    SetFocus(tree_);
    Select(folder);
    Key(VK_LEFT);
    Key(VK_RIGHT);
    EXPECT_EQ(3U, ToldOf(TVN_ITEMEXPANDINGA).size());
}

TEST_F(TreeViewTest, SelectionTellsWhoMadeIt) {
    const HTREEITEM a = Add("a");
    const HTREEITEM b = Add("b");
    SetFocus(tree_);
    Select(a);
    told_.clear();
    Select(b);
    Select(b);
    Key(VK_UP);
    const RECT label = Rect(b, true);
    ASSERT_GT(label.right, label.left);
    Click({(label.left + label.right) / 2, (label.top + label.bottom) / 2});
    const auto changes = ToldOf(TVN_SELCHANGEDA);
    ASSERT_EQ(3U, changes.size());
    EXPECT_EQ(UINT{TVC_UNKNOWN}, changes[0].action);
    EXPECT_EQ(a, changes[0].before);
    EXPECT_EQ(b, changes[0].item);
    EXPECT_EQ(UINT{TVC_BYKEYBOARD}, changes[1].action);
    EXPECT_EQ(UINT{TVC_BYMOUSE}, changes[2].action);
    EXPECT_EQ(b, Caret());
    EXPECT_EQ(0U, State(a) & TVIS_SELECTED);
    EXPECT_NE(0U, State(b) & TVIS_SELECTED);
    Select(nullptr);
    EXPECT_EQ(nullptr, Caret());
}

TEST_F(TreeViewTest, AClosedItemTakesTheSelectionFromItsChildrenAndMayStayClosed) {
    const HTREEITEM a = Add("a");
    const HTREEITEM child = Add("child", a);
    // To be selected an item must be seen.
    Select(child);
    EXPECT_NE(0U, State(a) & TVIS_EXPANDED);
    EXPECT_TRUE(Expand(a, TVE_COLLAPSE));
    EXPECT_EQ(a, Caret());
    EXPECT_FALSE(Expand(a, TVE_COLLAPSE));
    answer_ = [](NMHDR* header) -> LRESULT { return header->code == TVN_ITEMEXPANDINGA; };
    const HTREEITEM b = Add("b");
    Add("child", b);
    Expand(b);
    EXPECT_EQ(0U, State(b) & TVIS_EXPANDED) << "the application refuses";
}

TEST_F(TreeViewTest, EachItemThatGoesIsTold) {
    const HTREEITEM a = Add("a", TVI_ROOT, TVI_LAST, 1);
    const HTREEITEM child = Add("child", a, TVI_LAST, 2);
    Add("grandchild", child, TVI_LAST, 3);
    Add("b", TVI_ROOT, TVI_LAST, 4);
    Select(a);
    EXPECT_TRUE(Send(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT)));
    std::vector<LPARAM> gone;
    for (const Told& one : ToldOf(TVN_DELETEITEMA)) {
        gone.push_back(one.param);
    }
    std::sort(gone.begin(), gone.end());
    EXPECT_EQ((std::vector<LPARAM>{1, 2, 3, 4}), gone);
    EXPECT_EQ(nullptr, Caret());
    EXPECT_EQ(0, Send(TVM_GETCOUNT));
    told_.clear();
    Add("c", TVI_ROOT, TVI_LAST, 5);
    DestroyWindow(tree_);
    ASSERT_EQ(1U, ToldOf(TVN_DELETEITEMA).size());
    EXPECT_EQ(5, ToldOf(TVN_DELETEITEMA)[0].param);
}

TEST_F(TreeViewTest, KeysWalkThroughTheRows) {
    const HTREEITEM a = Add("a");
    const HTREEITEM child = Add("child", a);
    const HTREEITEM b = Add("b");
    SetFocus(tree_);
    Select(a);
    struct {
        WPARAM key;
        HTREEITEM caret;
    } const steps[] = {{VK_DOWN, b}, {VK_HOME, a},   {VK_RIGHT, a}, {VK_RIGHT, child},
                       {VK_END, b},  {VK_UP, child}, {VK_LEFT, a}};
    for (const auto& step : steps) {
        Key(step.key);
        EXPECT_EQ(step.caret, Caret()) << step.key;
    }
    Key(VK_SUBTRACT);
    EXPECT_EQ(0U, State(a) & TVIS_EXPANDED);
    Key(VK_ADD);
    EXPECT_NE(0U, State(a) & TVIS_EXPANDED);
    Select(child);
    Key(VK_BACK);
    EXPECT_EQ(a, Caret());
}

TEST_F(TreeViewTest, TheMouseFindsButtonsAndLabels) {
    const HTREEITEM a = Add("a");
    Add("child", a);
    const RECT label = Rect(a, true);
    const RECT row = Rect(a, false);
    EXPECT_EQ(0, row.left);
    Click({label.left + 3, (label.top + label.bottom) / 2});
    EXPECT_EQ(a, Caret());
    Click({10, row.bottom + 100});
    EXPECT_EQ(a, Caret());
    // The button lies somewhere in the indent before the item.
    POINT button{0, (row.top + row.bottom) / 2};
    while (button.x < label.left && !(State(a) & TVIS_EXPANDED)) {
        ++button.x;
        Click(button);
    }
    ASSERT_LT(button.x, label.left);
    Click(button);
    EXPECT_EQ(0U, State(a) & TVIS_EXPANDED);
}

TEST_F(TreeViewTest, TenThousandItemsScroll) {
    Send(WM_SETREDRAW, FALSE);
    HTREEITEM last = nullptr;
    for (int i = 0; i < 10000; ++i) {
        last = Add("item " + std::to_string(i));
    }
    Send(WM_SETREDRAW, TRUE);
    UpdateWindow(tree_);
    const HTREEITEM first = Next(TVGN_ROOT);
    EXPECT_EQ(first, Next(TVGN_FIRSTVISIBLE));
    Select(last);
    EXPECT_NE(first, Next(TVGN_FIRSTVISIBLE));
    const RECT row = Rect(last, false);
    RECT client;
    GetClientRect(tree_, &client);
    EXPECT_GE(row.top, 0);
    EXPECT_LE(row.bottom, client.bottom);
    Send(WM_VSCROLL, SB_TOP);
    EXPECT_EQ(first, Next(TVGN_FIRSTVISIBLE));
    Send(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ("item 1", Text(Next(TVGN_FIRSTVISIBLE)));
}

}  // namespace
