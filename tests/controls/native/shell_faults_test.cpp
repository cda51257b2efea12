// The folder tree list over a namespace that fails at each of its calls in turn.
#include <cvplatform.h>
#include <cvutil32/treelist.h>

#include "tests/controls/folder_tree.h"
#include "tests/support/window.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

namespace {

namespace fs = std::filesystem;

using namespace folder_tree;
using namespace testing_support;

HWND CreateTreeList(HWND parent) {
    return MakeChild(parent, TREELIST_CLASSNAME, 0, {0, 0, 280, 180});
}

/// A folder of drive C, where there is little else to read.
class DriveFolder {
  public:
    DriveFolder() : root_(fs::path(std::getenv("CVUTIL32_HOME")) / "drive_c" / "faults") {
        for (char const* name : {"a/x", "b", "c"}) {
            fs::create_directories(root_ / name);
        }
    }
    ~DriveFolder() {
        fs::remove_all(root_);
    }

  private:
    fs::path root_;
};

/// Opens the folder, and one below it. @return the names in it.
std::string Walk(HWND control) {
    HTREEITEM const item = Reach(control, "C:\\faults");
    if (!item) {
        return {};
    }
    Expand(control, item);
    char folder[MAX_PATH];
    Select(control, Next(control, TVGN_CHILD, item));
    TREELIST_GetFolder(control, folder);
    Expand(control, Next(control, TVGN_CHILD, item));
    return ChildrenOf(control, item);
}

TEST(ShellFaults, TheTreeHoldsWhatCouldBeReadAndNothingIsLost) {
    if (!std::getenv("CVUTIL32_HOME")) {
        GTEST_SKIP() << "needs a state folder of its own";
    }
    DriveFolder const folder;
    TestWindow host;
    // The computer, the drive, the folder and the one below it; one of them twice when its first reading failed.
    constexpr std::size_t kBound = 5;
    unsigned left = 0;
    std::string names;
    unsigned call = 1;
    for (; left == 0 && call < 10000; ++call) {
        std::size_t const blocks = CvPlatformCount(CV_PLATFORM_SHELL_BLOCKS);
        std::size_t const objects = CvPlatformCount(CV_PLATFORM_COMPONENT_OBJECTS);
        CvPlatformFailShell(call);
        HWND const control = CreateTreeList(host);
        ASSERT_NE(nullptr, control);
        names = TreeViewOf(control) ? Walk(control) : "";
        left = CvPlatformFailShell(0);
        DestroyWindow(control);
        ASSERT_EQ(blocks, CvPlatformCount(CV_PLATFORM_SHELL_BLOCKS)) << "call " << call;
        // The binding of a folder that was opened is kept, and nothing else.
        ASSERT_LE(CvPlatformCount(CV_PLATFORM_COMPONENT_OBJECTS), objects + kBound) << "call " << call;
    }
    // The last round was the first one in which nothing failed.
    EXPECT_NE(0U, left);
    EXPECT_GT(call, 50U);
    EXPECT_EQ("a+ b c ", names);
}

TEST(ShellFaults, WithoutTheComponentLibraryTheControlIsEmpty) {
    TestWindow host;
    CvPlatformFailShell(1);
    HWND const control = CreateTreeList(host);
    EXPECT_NE(nullptr, control);
    EXPECT_EQ(nullptr, TreeViewOf(control));
    char folder[MAX_PATH] = "x";
    EXPECT_EQ(0, TREELIST_GetFolder(control, folder));
    EXPECT_STREQ("", folder);
}

}  // namespace
