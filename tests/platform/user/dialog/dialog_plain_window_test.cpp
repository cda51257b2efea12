// The keyboard of dialogs where no dialog is: plain windows with controls, which have no Tab; groups through nested pages, and edit controls of
// several lines, which take the keys for themselves.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/platform/support/dialog_builder.h"
#include "tests/platform/support/edit_control.h"
#include "tests/platform/support/recorder.h"

namespace {

using tests::DialogKey;
using tests::Recorder;

class PlainWindowKeys : public tests::RecordedTest {
  protected:
    static constexpr int kField = 1, kOne = 3, kTwo = 4, kRadio1 = 11, kRadio2 = 12, kInPage = 13, kLast = 14;

    void SetUp() override {
        MakeWindow(WS_POPUP | WS_VISIBLE, 50, 50, 300, 200);
        Child("edit", kField, WS_TABSTOP | WS_GROUP);
        Child("button", kOne, WS_TABSTOP);
        Child("button", kTwo, WS_TABSTOP | WS_DISABLED);
        Child("button", kRadio1, WS_TABSTOP | WS_GROUP | BS_AUTORADIOBUTTON);
        Child("button", kRadio2, BS_AUTORADIOBUTTON);
        page_ = Child("static", 0, 0, WS_EX_CONTROLPARENT);
        CreateWindowExA(0, "edit", "", WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_GROUP, 0, 0, 20, 20, page_,
                        reinterpret_cast<HMENU>(static_cast<LONG_PTR>(kInPage)), nullptr, nullptr);
        Child("button", kLast, WS_TABSTOP);
        SetFocus(Item(kField));
        Recorder::Get().Clear();
    }
    HWND Child(const char* className, int id, DWORD style, DWORD exStyle = 0) {
        return CreateWindowExA(exStyle, className, "", WS_CHILD | WS_VISIBLE | style, 0, 0, 20, 20, window,
                               reinterpret_cast<HMENU>(static_cast<LONG_PTR>(id)), nullptr, nullptr);
    }
    HWND Item(int id) {
        return GetDlgItem(window, id);
    }
    int Press(WPARAM key) {
        EXPECT_TRUE(DialogKey(window, GetFocus(), key));
        return GetDlgCtrlID(GetFocus());
    }
    HWND page_ = nullptr;
};

TEST_F(PlainWindowKeys, EscapeIsACommand) {
    Press(VK_ESCAPE);
    const tests::Heard* command = Recorder::Get().Find(WM_COMMAND);
    ASSERT_NE(nullptr, command);
    EXPECT_EQ(MAKEWPARAM(IDCANCEL, BN_CLICKED), command->wParam);
}

// --- groups

TEST_F(PlainWindowKeys, GroupsGoOnThroughPages) {
    const auto next = [&](HWND from, BOOL previous) {
        return GetDlgCtrlID(GetNextDlgGroupItem(window, from, previous));
    };
    const HWND inPage = GetDlgItem(page_, kInPage);
    EXPECT_EQ(kLast, next(inPage, FALSE)) << "behind the page";
    EXPECT_EQ(inPage, GetNextDlgGroupItem(window, Item(kLast), FALSE)) << "and back into it";
    EXPECT_EQ(kLast, next(inPage, TRUE));
    // Without its own group what is on the page belongs to the group before it; the page's style says nothing.
    SetWindowLongA(inPage, GWL_STYLE, GetWindowLongA(inPage, GWL_STYLE) & ~WS_GROUP);
    SetWindowLongA(page_, GWL_STYLE, GetWindowLongA(page_, GWL_STYLE) | WS_GROUP);
    EXPECT_EQ(inPage, GetNextDlgGroupItem(window, Item(kRadio2), FALSE));
    EXPECT_EQ(kRadio1, next(Item(kLast), FALSE));
    EXPECT_EQ(kLast, next(Item(kRadio1), TRUE));
    // A page that cannot be reached is passed over.
    EnableWindow(page_, FALSE);
    SetWindowLongA(page_, GWL_STYLE, GetWindowLongA(page_, GWL_STYLE) & ~WS_GROUP);
    EXPECT_EQ(kLast, next(Item(kRadio2), FALSE));
}

// --- edit controls of several lines

class LinesInDialog : public ::testing::Test {
  protected:
    static constexpr int kBefore = 20, kLines = 21, kText = 22;
    static inline std::vector<int> commands;
    static inline int closed = 0;
    static INT_PTR CALLBACK Procedure(HWND, UINT message, WPARAM wParam, LPARAM) {
        if (message == WM_INITDIALOG)
            return TRUE;
        closed += message == WM_CLOSE;
        if (message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED)
            commands.push_back(LOWORD(wParam));
        return FALSE;
    }

    void SetUp() override {
        commands.clear();
        closed = 0;
        tests::DialogBuilder builder(WS_POPUP | WS_CAPTION | WS_VISIBLE);
        builder.Title("lines")
            .Item("edit", "", kBefore, WS_TABSTOP, 5, 5, 40, 10)
            .Item("edit", "", kLines, WS_TABSTOP | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN, 5, 20, 100, 20)
            .Item("edit", "", kText, WS_TABSTOP | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN, 5, 50, 100, 20)
            .Item("button", "OK", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, 5, 100, 50, 14);
        dialog_ = CreateDialogIndirectParamA(nullptr, builder.Data(), nullptr, Procedure, 0);
        ASSERT_NE(nullptr, dialog_);
    }
    void TearDown() override {
        DestroyWindow(dialog_);
    }
    HWND Item(int id) {
        return GetDlgItem(dialog_, id);
    }
    /// Presses a key in a control, and lets all that comes of it happen. @returns where the focus is.
    int Press(int id, WPARAM key) {
        SetFocus(Item(id));
        DialogKey(dialog_, Item(id), key);
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (!IsDialogMessageA(dialog_, &message))
                DispatchMessageA(&message);
        }
        return GetDlgCtrlID(GetFocus());
    }
    std::string TextOf(int id) {
        char text[40] = "";
        GetWindowTextA(Item(id), text, sizeof text);
        return text;
    }
    HWND dialog_ = nullptr;
};

TEST_F(LinesInDialog, LeaveTabToTheDialog) {
    EXPECT_EQ(kText, Press(kLines, VK_TAB));
    EXPECT_EQ(IDOK, Press(kText, VK_TAB));
    const tests::ShiftHeld shift;
    EXPECT_EQ(kBefore, Press(kLines, VK_TAB));
    EXPECT_EQ("", TextOf(kLines));
}

TEST_F(LinesInDialog, EnterIsText) {
    EXPECT_EQ(kText, Press(kText, VK_RETURN));
    EXPECT_EQ("\r\n", TextOf(kText));
    const tests::KeyHeld control(VK_CONTROL);
    Press(kLines, VK_RETURN);
    EXPECT_EQ("\r\n", TextOf(kLines));
    EXPECT_TRUE(commands.empty());
}

TEST_F(LinesInDialog, EscapeClosesTheDialog) {
    for (const int id : {kLines, kText}) {
        closed = 0;
        Press(id, VK_ESCAPE);
        EXPECT_EQ(1, closed);
        EXPECT_EQ(std::vector<int>{IDCANCEL}, std::exchange(commands, {}));
    }
    Press(kBefore, VK_ESCAPE);
    EXPECT_EQ(1, closed) << "one line leaves the key to the dialog, which commands at once";
    EXPECT_EQ(std::vector<int>{IDCANCEL}, commands);
}

}  // namespace
