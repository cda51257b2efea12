// Windows and what they hold, once the memory has run out.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/support/leaks.h"
#include "tests/support/native/failing_memory.h"

using testing_support::FailingAllocation;
using testing_support::LeakCheck;
using testing_support::Memory;
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

// What is done to a field, each with every allocation failing in turn.
struct Change {
    const char* what;
    void (*make)(HWND field);
};
constexpr Change kChanges[] = {
    {"shorter text", [](HWND field) { SetWindowTextA(field, "shorter than the field"); }},
    {"longer text",
     [](HWND field) { SetWindowTextA(field, "a text that is longer\r\nthan\r\nall that\r\nwas there before"); }},
    {"typing over what is selected",
     [](HWND field) {
         SendMessageA(field, EM_SETSEL, 2, -1);
         SendMessageA(field, WM_CHAR, 'x', 1);
     }},
    {"erasing",
     [](HWND field) {
         SendMessageA(field, EM_SETSEL, 1, -1);
         SendMessageA(field, WM_CLEAR, 0, 0);
     }},
};

TEST(WindowMemory, AFieldIsDrawnAfterWhateverFailed) {
    const HWND parent = MakeParent();
    for (const DWORD style : {DWORD{ES_AUTOHSCROLL}, DWORD{ES_AUTOHSCROLL | ES_PASSWORD}, DWORD{ES_MULTILINE},
                              DWORD{ES_MULTILINE | ES_PASSWORD}}) {
        const HWND field = CreateWindowExA(0, "edit", "", WS_CHILD | WS_VISIBLE | style, 0, 0, 200, 60, parent, nullptr,
                                           nullptr, nullptr);
        for (const Change& change : kChanges) {
            bool failed = true;
            for (unsigned which = 1; failed && which < 1000; ++which) {
                // Longer than the field, which then shows its end.
                SetWindowTextA(field, std::string(90, 'm').c_str());
                SendMessageA(field, EM_SETSEL, 90, 90);
                SendMessageA(field, WM_CHAR, 'x', 1);
                FailingAllocation failing(Memory::Any, which);
                failing.On();
                change.make(field);
                failing.Off();
                failed = failing.failed();
                char text[100] = "";
                const int length = GetWindowTextA(field, text, sizeof text);
                EXPECT_EQ(length, GetWindowTextLengthA(field)) << change.what << ' ' << which;
                RedrawWindow(field, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
                EXPECT_FALSE(GetUpdateRect(field, nullptr, FALSE)) << change.what << ' ' << which;
            }
            EXPECT_FALSE(failed) << change.what << " never stops allocating";
        }
    }
    DestroyWindow(parent);
}

}  // namespace
