// Windows and what they hold, once the memory has run out.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <memory>

#include "tests/support/leaks.h"
#include "tests/support/native/failing_memory.h"

using testing_support::LeakCheck;
using testing_support::NoFreeStore;

namespace {

constexpr const char* kStandard[] = {"button", "edit", "static", "listbox", "combobox", "scrollbar", WC_TREEVIEWA};

// Counts without asking for memory.
struct Ends {
    int windows;
    int items;
};
Ends ends;

LRESULT CALLBACK HearEnds(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    ends.windows += message == WM_NCDESTROY;
    ends.items += message == WM_NOTIFY && reinterpret_cast<const NMHDR*>(lParam)->code == TVN_DELETEITEMA;
    return DefWindowProcA(window, message, wParam, lParam);
}

HWND MakeParent() {
    InitCommonControls();
    const HWND parent =
        CreateWindowExA(0, "static", "", WS_POPUP | WS_VISIBLE, 20, 20, 300, 200, nullptr, nullptr, nullptr, nullptr);
    SetWindowLongPtrA(parent, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(HearEnds));
    ends = {};
    return parent;
}

void MakeAndEnd(bool withMemory) {
    const HWND parent = MakeParent();
    HWND controls[std::size(kStandard)];
    HTREEITEM above = TVI_ROOT;
    for (std::size_t i = 0; i < std::size(kStandard); ++i) {
        controls[i] = CreateWindowExA(0, kStandard[i], "text", WS_CHILD | WS_VISIBLE, 0, 0, 80, 60, parent, nullptr,
                                      nullptr, nullptr);
        ASSERT_NE(controls[i], nullptr) << kStandard[i];
        SetPropA(controls[i], "Property", controls[i]);
        SetTimer(controls[i], 1, 1000, nullptr);
        SendMessageA(controls[i], LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("item"));
        SendMessageA(controls[i], CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("item"));
    }
    for (int i = 0; i < 20; ++i) {
        TVINSERTSTRUCTA insert{};
        insert.hParent = above;
        insert.hInsertAfter = TVI_LAST;
        const HTREEITEM item = reinterpret_cast<HTREEITEM>(
            SendMessageA(controls[std::size(kStandard) - 1], TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insert)));
        above = i % 3 == 0 ? item : above;
    }
    BOOL gone = FALSE;
    {
        const std::unique_ptr<NoFreeStore> none(withMemory ? nullptr : new NoFreeStore);
        gone = DestroyWindow(parent);
    }
    EXPECT_TRUE(gone);
    EXPECT_FALSE(IsWindow(parent));
    EXPECT_EQ(ends.windows, 1);
    EXPECT_EQ(ends.items, 20) << "items whose owner was not told";
    for (const HWND control : controls) {
        EXPECT_FALSE(IsWindow(control));
    }
}

TEST(WindowMemory, WindowsEndWithoutAny) {
    MakeAndEnd(true);  // what is made once and kept is there from now on
    const LeakCheck leaks;
    MakeAndEnd(false);
}

TEST(WindowMemory, ControlsAreNotMadeWithoutAny) {
    const HWND parent = MakeParent();
    for (const char* name : kStandard) {
        const LeakCheck leaks;
        HWND control = parent;
        {
            const NoFreeStore none;
            control = CreateWindowExA(0, name, "text", WS_CHILD | WS_VISIBLE, 0, 0, 80, 60, parent, nullptr, nullptr,
                                      nullptr);
        }
        EXPECT_EQ(control, nullptr) << name;
    }
    EXPECT_EQ(GetWindow(parent, GW_CHILD), nullptr);
    DestroyWindow(parent);
}

}  // namespace
