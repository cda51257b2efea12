// The folder tree list: what it shows of folders of the test's own, what it tells, and the paths it gives.
#include <cvutil32/treelist.h>

#include "tests/controls/folder_tree.h"
#include "tests/support/temp_folder.h"
#include "tests/support/window.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using namespace folder_tree;
using namespace testing_support;

constexpr int kTreeListId = 9;

class TreeList : public testing::Test {
  protected:
    TreeList() : control_(MakeChild(host_, TREELIST_CLASSNAME, 0, {0, 0, 280, 180}, kTreeListId)) {}

    TempFolder folder_;
    TestWindow host_;
    HWND control_;
};

TEST_F(TreeList, ATreeViewFillsIt) {
    char name[40];
    GetClassNameA(TreeViewOf(control_), name, sizeof name);
    EXPECT_STREQ("SysTreeView32", name);
    EXPECT_EQ(850, GetDlgCtrlID(TreeViewOf(control_)));
    RECT own;
    RECT tree;
    GetClientRect(control_, &own);
    GetWindowRect(TreeViewOf(control_), &tree);
    EXPECT_EQ(own.right, tree.right - tree.left);
    EXPECT_EQ(own.bottom, tree.bottom - tree.top);
    EXPECT_EQ(0x50810027U,
              static_cast<DWORD>(GetWindowLongA(TreeViewOf(control_), GWL_STYLE)) & ~(WS_VSCROLL | WS_HSCROLL));
}

TEST_F(TreeList, TheFirstItemIsOpenAndSelectedAndNobodyIsTold) {
    HTREEITEM const first = Next(control_, TVGN_ROOT);
    ASSERT_NE(nullptr, first);
    EXPECT_EQ(first, Next(control_, TVGN_CARET));
    EXPECT_NE(nullptr, Next(control_, TVGN_CHILD, first));
    EXPECT_TRUE(host_.Received(WM_COMMAND).empty());
}

TEST_F(TreeList, FoldersAreSortedAndFilesLeftOut) {
    folder_.MakeFolder("beta");
    folder_.MakeFolder("Alpha\\one");
    folder_.MakeFolder("gamma 2");
    folder_.MakeFile("file.txt");
    HTREEITEM const item = Reach(control_, folder_.Path());
    ASSERT_NE(nullptr, item);
    ASSERT_TRUE(Expand(control_, item));
    HTREEITEM const child = Next(control_, TVGN_CHILD, item);
    EXPECT_NE(ItemOf(control_, child).iImage, ItemOf(control_, child).iSelectedImage);
    EXPECT_NE(0, ItemOf(control_, child).cChildren) << "there is a folder in Alpha";
    // Some shells promise folders in all of them.
    auto const names = [&] {
        std::string all = ChildrenOf(control_, item);
        std::erase(all, '+');
        return all;
    };
    std::string const expected =
        Shown(control_, "Alpha") + " " + Shown(control_, "beta") + " " + Shown(control_, "gamma 2") + " ";
    EXPECT_EQ(expected, names());

    // A folder is read once.
    folder_.MakeFolder("delta");
    Expand(control_, item, TVE_COLLAPSE);
    ASSERT_TRUE(Expand(control_, item));
    EXPECT_EQ(expected, names());
}

TEST_F(TreeList, AFolderThatVanishesKeepsItsButton) {
    folder_.MakeFolder("gone\\below");
    HTREEITEM const item = Reach(control_, folder_.Path("gone"));
    ASSERT_NE(nullptr, item);
    std::filesystem::remove_all(testing_support::HostPathOf(folder_.Path("gone")));
    EXPECT_FALSE(Expand(control_, item));
    EXPECT_NE(0, ItemOf(control_, item).cChildren);
    EXPECT_EQ(nullptr, Next(control_, TVGN_CHILD, item));
}

TEST_F(TreeList, PathsAreThoseOfTheSelectedFolder) {
    std::string const path = folder_.MakeFolder("with blanks; and more");
    ASSERT_NE(nullptr, Reach(control_, path));
    char buffer[MAX_PATH] = "old";
    std::string const found = Found(control_, path);
    EXPECT_EQ(static_cast<int>(found.size()), TREELIST_GetFolder(control_, buffer));
    EXPECT_EQ(0, lstrcmpiA(found.c_str(), buffer)) << buffer;
    std::string const drive = path.substr(0, 3);
    ASSERT_NE(nullptr, Reach(control_, drive));
    EXPECT_EQ(3, TREELIST_GetFolder(control_, buffer));
    EXPECT_EQ(drive, buffer);
    // What the drives stand in has no path.
    Select(control_, Next(control_, TVGN_PARENT, Next(control_, TVGN_CARET)));
    EXPECT_EQ(0, TREELIST_GetFolder(control_, buffer));
    EXPECT_STREQ("", buffer);
    Select(control_, nullptr);
    EXPECT_EQ(0, TREELIST_GetFolder(control_, buffer));
}

TEST_F(TreeList, OtherWindowsAndNoBufferAreRefused) {
    char buffer[MAX_PATH] = "kept";
    EXPECT_EQ(0, TREELIST_GetFolder(control_, nullptr));
    EXPECT_EQ(0, TREELIST_GetFolder(host_, buffer));
    EXPECT_EQ(0, TREELIST_GetFolder(nullptr, buffer));
    EXPECT_STREQ("kept", buffer);
    // The computer, which is selected at first, has no path.
    EXPECT_EQ(0, TREELIST_GetFolder(control_, buffer));
    EXPECT_STREQ("", buffer);
}

TEST_F(TreeList, OnlyTheUsersSelectionIsTold) {
    folder_.MakeFolder("a");
    folder_.MakeFolder("b");
    HTREEITEM const item = Reach(control_, folder_.Path());
    Expand(control_, item);
    SetFocus(control_);
    EXPECT_EQ(TreeViewOf(control_), GetFocus());
    Select(control_, item);
    EXPECT_TRUE(host_.Received(WM_COMMAND).empty());
    Send(control_, WM_KEYDOWN, VK_DOWN, 1);
    auto const told = host_.Received(WM_COMMAND);
    ASSERT_EQ(1U, told.size());
    EXPECT_EQ(static_cast<WPARAM>(MAKELONG(kTreeListId, TREELIST_SELCHANGE)), told[0].wParam);
    EXPECT_EQ(control_, reinterpret_cast<HWND>(told[0].lParam));
    char buffer[MAX_PATH];
    TREELIST_GetFolder(control_, buffer);
    EXPECT_EQ(0, lstrcmpiA(Found(control_, folder_.Path("a")).c_str(), buffer)) << buffer;
}

}  // namespace
