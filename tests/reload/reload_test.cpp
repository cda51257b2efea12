// A program that loads the library by its file, lets it go and loads it again, as a host of plug-ins does. Alone in its
// program, which must not be linked with the library.
#include <windows.h>

#include <cvutil32/animate.h>
#include <cvutil32/browse.h>
#include <cvutil32/buddyfr.h>
#include <cvutil32/cklist.h>
#include <cvutil32/datectrl.h>
#include <cvutil32/grbutton.h>
#include <cvutil32/numfld.h>
#include <cvutil32/scroll.h>
#include <cvutil32/timectrl.h>
#include <cvutil32/treelist.h>

#include "tests/support/leaks.h"
#include "tests/support/window.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using testing_support::TestWindow;

std::string LibraryPath() {
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, sizeof path);
    std::string const program = path;
    return program.substr(0, program.rfind('\\') + 1) + CVUTIL32_FILE;
}

/// The library while it is loaded.
class Library {
  public:
    Library() : module_(LoadLibraryA(LibraryPath().c_str())) {}
    ~Library() {
        EXPECT_TRUE(FreeLibrary(module_));
        EXPECT_EQ(nullptr, GetModuleHandleA(LibraryPath().c_str())) << "nobody else holds it";
    }
    Library(Library const&) = delete;
    Library& operator=(Library const&) = delete;

    bool IsThere() const {
        return module_ != nullptr;
    }

    /// An export with the type of its declaration.
    template <class Function>
    Function* Find(Function*, char const* name) const {
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
    }

  private:
    HMODULE module_;
};

#define CV_FIND(library, function) (library).Find(static_cast<decltype(&(function))>(nullptr), #function)

HWND Make(HWND parent, char const* name, DWORD style = 0) {
    HWND const window = CreateWindowExA(0, name, "", WS_CHILD | WS_VISIBLE | style, 10, 10, 80, 30, parent, nullptr,
                                        GetModuleHandleA(nullptr), nullptr);
    EXPECT_NE(nullptr, window) << name;
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    return window;
}

void UseAllControls(Library const& library) {
    TestWindow const host;
    SYSTEMTIME const day = {.wYear = 1995, .wMonth = 12, .wDay = 31};
    SYSTEMTIME got = {};
    HWND const date = Make(host, DATECTRL_CLASSNAME);
    EXPECT_TRUE(CV_FIND(library, DATECTRL_SetDate)(date, &day, TRUE));
    Make(host, SCROLL_CLASSNAME, SCROLL_PREVSIBLING | SCROLL_VERTICAL);
    EXPECT_TRUE(CV_FIND(library, DATECTRL_GetDate)(date, &got));
    EXPECT_EQ(1995, got.wYear);
    EXPECT_TRUE(CV_FIND(library, TIMECTRL_SetTime)(Make(host, TIMECTRL_CLASSNAME), &day, TRUE));

    HWND const number = Make(host, NUMFLD_CLASSNAME, ES_AUTOHSCROLL);
    CV_FIND(library, NUMFLD_SetLimits)(number, 1, 50);
    CV_FIND(library, NUMFLD_SetValue)(number, 7);
    SendMessageA(number, WM_VSCROLL, SB_LINEUP, 0);
    EXPECT_EQ(8, CV_FIND(library, NUMFLD_GetValue)(number)) << "the field knows its data and its base class";

    HWND const browse = Make(host, BROWSE_CLASSNAME, BROWSE_AUTOBUDDY | BROWSE_FILEMODE);
    EXPECT_EQ(DWORD{BROWSE_FILEMODE}, CV_FIND(library, BROWSE_GetDialogOptions)(browse));
    HBITMAP const bitmaps[] = {CreateBitmap(4, 4, 1, 1, nullptr), CreateBitmap(4, 4, 1, 1, nullptr)};
    EXPECT_TRUE(
        CV_FIND(library, GRBUTTON_SetHBitmaps)(Make(host, GRBUTTON_CLASSNAME, WS_TABSTOP), bitmaps[0], bitmaps[1]));
    Make(host, BUDDYFR_CLASSNAME);

    HWND const list = Make(host, CKLIST_CLASSNAME, LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_MULTIPLESEL);
    SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("ticked"));
    SendMessageA(list, LB_SETSEL, TRUE, 0);
    UpdateWindow(list);
    // The tick, in the second box of the library's picture.
    testing_support::Picture const picture = testing_support::PictureOf(list);
    int black = 0;
    for (int y = 0; y < 11; ++y) {
        for (int x = 11; x < 20; ++x) {
            black += picture.At(x, y) == RGB(0, 0, 0);
        }
    }
    EXPECT_LT(5, black);

    EXPECT_FALSE(CV_FIND(library, ANIMATE_Start)(Make(host, ANIMATE_CLASSNAME))) << "has no pictures";
    char folder[MAX_PATH];
    HWND const tree = Make(host, TREELIST_CLASSNAME);
    CV_FIND(library, TREELIST_GetFolder)(tree, folder);
    EXPECT_NE(nullptr, GetWindow(tree, GW_CHILD));
}

void LoadAndUse() {
    Library const library;
    ASSERT_TRUE(library.IsThere()) << LibraryPath();
    UseAllControls(library);
}

TEST(Reload, ControlsWorkAfterEachLoad) {
    // Once before what is counted: the system keeps what it makes once.
    LoadAndUse();
    testing_support::LeakCheck const leaks;
    for (int load = 2; load <= 4; ++load) {
        SCOPED_TRACE(load);
        LoadAndUse();
    }
}

}  // namespace
