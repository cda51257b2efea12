// Edit controls of several lines in dialogs, which take the keys for themselves.
#include "tests/platform/support/controls.h"

namespace {

class LinesInDialog : public tests::Controls {
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
        tests::DialogKey(dialog_, Item(id), key);
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (!IsDialogMessageA(dialog_, &message))
                DispatchMessageA(&message);
        }
        return GetDlgCtrlID(GetFocus());
    }
    HWND dialog_ = nullptr;
};

TEST_F(LinesInDialog, LeaveTabToTheDialog) {
    EXPECT_EQ(kText, Press(kLines, VK_TAB));
    EXPECT_EQ(IDOK, Press(kText, VK_TAB));
    const tests::KeyHeld shift(VK_SHIFT);
    EXPECT_EQ(kBefore, Press(kLines, VK_TAB));
    EXPECT_EQ("", Text(Item(kLines)));
}

TEST_F(LinesInDialog, EnterIsText) {
    EXPECT_EQ(kText, Press(kText, VK_RETURN));
    EXPECT_EQ("\r\n", Text(Item(kText)));
    const tests::KeyHeld control(VK_CONTROL);
    Press(kLines, VK_RETURN);
    EXPECT_EQ("\r\n", Text(Item(kLines)));
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
